<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>Timer ein-/ausblenden</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Automatischer Wechsel</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>Fokusdauer</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>Pausendauer</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>Musik im Fokus</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>Musik in der Pause</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>Über velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Benutzerdefiniert …</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>%1 min Fokus / %2 min Pause</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>Aktuelle Phase</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>Eigene URL bearbeiten …</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>Pause starten</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Fokus starten</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>Pause anhalten</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>Fokus anhalten</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>Pause zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>Fokus zurücksetzen</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>Eigene URL</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>Entspannte Beats für den Fokus</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>Ambient aus den Tiefen des Alls</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>Downtempo-Grooves</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>Hacker- und Cyberpunk-Stimmung</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>Ambient ohne Beats</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>Sinnlich und sanft</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>Ihre eigene Stream-URL</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>Fokus: %1 min  •  Pause: %2 min</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>Ein Fokus-Timer, der Ihre Sitzungen einfach und frei von Ablenkungen hält.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>Einen Kaffee spendieren</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 – Fokus-Timer</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Alle Rechte vorbehalten.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>Anleitung zu velto</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>Willkommen bei velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>Ein einfacher Fokus-Timer für produktive Sitzungen</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>Sie finden velto in der Menüleiste am oberen Bildschirmrand:
• Linksklick auf das Symbol: Timer anzeigen
• Rechtsklick auf das Symbol: Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>Bedienung des Timers</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• Mit „Starten“ beginnt eine Fokus-Sitzung
• Für eine Unterbrechung jederzeit anhalten
• Zum Neubeginn zurücksetzen
• Zwischen den Phasen Fokus und Pause wechseln</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>Ganz nach Ihrem Geschmack</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• Fokus- und Pausendauer anpassen
• Einen unserer Musiksender wählen oder einen eigenen hinzufügen
• Den automatischen Phasenwechsel einschalten
• Die Hinweisklänge anpassen</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>Schalten Sie Hintergrundmusik ein, um sich besser zu konzentrieren. In den Einstellungen stehen Lo-Fi, Ambient und andere Sender zur Wahl.</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>Profi-Tipps</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• Standard: 25 min Fokus, 5 min Pause (Pomodoro-Technik)
• Die Lautstärke der Musik lässt sich in den Einstellungen regeln
• Geänderte Einstellungen unterbrechen keine laufende Sitzung
• Diese Hilfe ist jederzeit über das Menü erreichbar</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>Sie können diese Anleitung jederzeit aufrufen: Menüleiste → Anleitung</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>Minute</numerusform>
            <numerusform>Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Automatischer Wechsel</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>Die nächste Phase beginnt von selbst, wenn der Timer 0 erreicht</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>Countdown-Ticken</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>Fokusende</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>Pausenende</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>%1 abspielen</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>Musik im Fokus einschalten</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>Musik in der Pause einschalten</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>Eigene URL</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
</TS>
