<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>Mostrar u ocultar el temporizador</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Transición automática</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>Duración de la concentración</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>Duración del descanso</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>Música de concentración</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>Música de descanso</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Cómo se usa</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>Acerca de velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Personalizar…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>%1 min de concentración / %2 min de descanso</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>Fase actual</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentración</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Descanso</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>Editar el URL personalizado…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>Iniciar el descanso</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Iniciar la concentración</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>Pausar el descanso</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>Pausar la concentración</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>Reiniciar el descanso</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>Reiniciar la concentración</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL personalizado</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>Ritmos tranquilos para concentrarse</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>Ambient del espacio profundo</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>Grooves a ritmo lento</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>Onda hacker/ciberpunk</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>Ambient sin percusión</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>Sensual y suave</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>El URL de su propia emisora</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>Concentración %1 min, descanso %2 min</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>Un temporizador de concentración pensado para sesiones sencillas y sin distracciones.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Asistencia</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>Invíteme a un café</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 - Temporizador de concentración</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Todos los derechos reservados.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentración</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Descanso</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>Cómo se usa velto</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>Le damos la bienvenida a velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>Un temporizador de concentración sencillo para sesiones productivas</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>velto está en la barra de menús, en la parte superior de la pantalla:
• Pulse el icono con el botón izquierdo para ver el temporizador
• Pulse el icono con el botón derecho para abrir la configuración</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>Controles del temporizador</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• Pulse Iniciar para empezar una sesión de concentración
• Páuselo cuando quiera para tomarse un respiro
• Reinícielo para volver a empezar
• Cambie entre las fases de concentración y de descanso</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>A su gusto</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• Ajuste la duración de la concentración y del descanso
• Elija una de nuestras emisoras o añada la suya
• Active la transición automática entre fases
• Personalice los sonidos de aviso</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>Active la música de fondo para concentrarse mejor. Elija Lo-Fi, Ambient u otra emisora en la configuración.</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>Consejos</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• De forma predeterminada: 25 min de concentración y 5 min de descanso (técnica Pomodoro)
• El volumen de la música se ajusta en la configuración
• Los cambios en la configuración no interrumpen la sesión en curso
• Puede consultar esta ayuda en cualquier momento desde el menú</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>Puede consultar esta guía en cualquier momento: barra de menús → Cómo se usa</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Duraciones</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Concentración</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Descanso</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>minuto</numerusform>
            <numerusform>minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Transición automática</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>Iniciar automáticamente la fase siguiente cuando el temporizador llegue a 0</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>Tictac de la cuenta atrás</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>Fin de la concentración</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>Fin del descanso</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Reproducir %1</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>Música durante la concentración</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>Música durante el descanso</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Emisora</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL personalizado</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
</TS>
