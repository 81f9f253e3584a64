<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>Afficher/masquer le minuteur</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Enchaînement automatique</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>Durée de concentration</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>Durée de pause</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>Musique de concentration</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>Musique de pause</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Mode d’emploi</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>À propos de velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Personnaliser…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>%1 min de concentration / %2 min de pause</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>Phase en cours</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>Modifier l’URL personnalisée…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>Démarrer la pause</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Démarrer la concentration</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>Suspendre la pause</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>Suspendre la concentration</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>Réinitialiser la pause</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>Réinitialiser la concentration</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL personnalisée</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>Rythmes détendus pour se concentrer</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>Ambient des profondeurs de l’espace</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>Grooves downtempo</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>Ambiance hacker/cyberpunk</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>Ambient sans rythme</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>Sensuel et doux</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>L’URL de votre propre flux</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>Concentration %1 min  •  Pause %2 min</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>Un minuteur de concentration conçu pour des séances simples et sans distraction.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>Offrez-moi un café</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 – Minuteur de concentration</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Tous droits réservés.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentration</translation>
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
        <translation>Mode d’emploi de velto</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>Bienvenue dans velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>Un minuteur de concentration simple pour des séances productives</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>velto se trouve dans la barre de menus, en haut de l’écran :
• Clic gauche sur l’icône pour voir votre minuteur
• Clic droit sur l’icône pour ouvrir les paramètres</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>Commandes du minuteur</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• Cliquez sur Démarrer pour commencer une séance de concentration
• Suspendez à tout moment pour souffler
• Réinitialisez pour recommencer
• Passez de la phase de concentration à la phase de pause, et inversement</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>À votre goût</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• Réglez les durées de concentration et de pause
• Choisissez l’une de nos stations ou ajoutez la vôtre
• Activez l’enchaînement automatique des phases
• Personnalisez les sons de notification</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>Activez une musique de fond pour mieux vous concentrer. Choisissez Lo-Fi, Ambient ou une autre station dans les paramètres.</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>Astuces</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• Par défaut : 25 min de concentration, 5 min de pause (technique Pomodoro)
• Le volume de la musique se règle dans les paramètres
• Changer les paramètres n’interrompt pas la séance en cours
• Cette aide est accessible à tout moment depuis le menu</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>Vous pouvez consulter ce guide à tout moment : barre de menus → Mode d’emploi</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Durées</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>minute</numerusform>
            <numerusform>minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Enchaînement automatique</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>Démarrer automatiquement la phase suivante quand le minuteur arrive à 0</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>Tic-tac du décompte</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>Fin de la concentration</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>Fin de la pause</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Lire %1</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>Musique pendant la concentration</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>Musique pendant la pause</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL personnalisée</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
</TS>
