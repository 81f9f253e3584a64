<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>Pokaż/ukryj minutnik</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Automatyczne przejście</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>Czas skupienia</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>Czas przerwy</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>Muzyka podczas skupienia</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>Muzyka podczas przerwy</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Jak używać</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>O programie velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minuta</numerusform>
            <numerusform>%n minuty</numerusform>
            <numerusform>%n minut</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Niestandardowy…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Szablony</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>%1 min skupienia / %2 min przerwy</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>Bieżąca faza</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Skupienie</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Przerwa</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>Edytuj własny adres URL…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>Rozpocznij przerwę</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Rozpocznij skupienie</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>Wstrzymaj przerwę</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>Wstrzymaj skupienie</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>Zresetuj przerwę</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>Zresetuj skupienie</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>Własny adres URL</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>Spokojne rytmy do skupienia</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>Ambient z głębi kosmosu</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>Rytmy w wolnym tempie</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>Klimaty hakerskie i cyberpunkowe</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>Ambient bez perkusji</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>Zmysłowo i łagodnie</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>Adres URL własnego strumienia</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>Skupienie: %1 min  •  Przerwa: %2 min</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>O programie %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>Minutnik skupienia stworzony po to, by sesje były proste i wolne od rozpraszania.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Pomoc techniczna</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Witryna</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>Postaw mi kawę</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 – minutnik skupienia</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Wszelkie prawa zastrzeżone.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zresetuj</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Skupienie</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Przerwa</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>Jak używać programu velto</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>Witamy w programie velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>Prosty minutnik skupienia do produktywnych sesji</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Pierwsze kroki</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>velto znajduje się na pasku menu u góry ekranu:
• Kliknij ikonę lewym przyciskiem, aby zobaczyć minutnik
• Kliknij ikonę prawym przyciskiem, aby otworzyć ustawienia</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>Obsługa minutnika</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• Kliknij „Rozpocznij”, aby zacząć sesję skupienia
• Wstrzymaj w dowolnej chwili, aby odpocząć
• Zresetuj, aby zacząć od nowa
• Przełączaj się między fazami skupienia i przerwy</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>Dostosuj do siebie</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• Zmień czas skupienia i przerwy
• Wybierz jedną z naszych stacji lub dodaj własną
• Włącz automatyczne przechodzenie między fazami
• Dostosuj dźwięki powiadomień</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzyka</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>Włącz muzykę w tle, aby lepiej się skupić. Wybierz Lo-Fi, Ambient lub inną stację w ustawieniach.</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>Wskazówki</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• Domyślnie: 25 min skupienia, 5 min przerwy (technika Pomodoro)
• Głośność muzyki można zmienić w ustawieniach
• Zmiana ustawień nie przerywa trwającej sesji
• Ta pomoc jest zawsze dostępna z menu</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>Ten przewodnik jest zawsze dostępny: pasek menu → Jak używać</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Czasy trwania</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Zachowanie</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Dźwięki</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzyka</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Skupienie</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Przerwa</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>minuta</numerusform>
            <numerusform>minuty</numerusform>
            <numerusform>minut</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Automatyczne przejście</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>Rozpoczynaj następną fazę automatycznie, gdy minutnik dojdzie do 0</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>Tykanie odliczania</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>Koniec skupienia</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>Koniec przerwy</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Odtwórz: %1</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>Muzyka podczas skupienia</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>Muzyka podczas przerwy</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Stacja</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>Własny adres URL</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
</TS>
