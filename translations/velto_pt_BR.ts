<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>Mostrar/ocultar o temporizador</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>Transição automática</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>Duração do foco</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>Duração do intervalo</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>Música do foco</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>Música do intervalo</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>Como usar</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>Sobre o velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
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
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>%1 min de foco / %2 min de intervalo</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>Fase atual</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Foco</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>Editar a URL personalizada…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>Iniciar o intervalo</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>Iniciar o foco</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>Pausar o intervalo</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>Pausar o foco</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>Reiniciar o intervalo</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>Reiniciar o foco</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL personalizada</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>Batidas tranquilas para o foco</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>Ambient do espaço profundo</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>Grooves em ritmo lento</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>Clima hacker/cyberpunk</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>Ambient sem batidas</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>Sensual e suave</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>A URL da sua própria transmissão</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>Foco: %1 min  •  Intervalo: %2 min</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>Um temporizador de foco feito para manter as sessões simples e sem distrações.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>Pague-me um café</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 - Temporizador de foco</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. Todos os direitos reservados.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
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
        <translation>Foco</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Intervalo</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>Como usar o velto</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>Boas-vindas ao velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>Um temporizador de foco simples para sessões produtivas</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>Primeiros passos</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>O velto está na barra de menus, no alto da tela:
• Clique no ícone com o botão esquerdo para ver o temporizador
• Clique no ícone com o botão direito para abrir as configurações</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>Controles do temporizador</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• Clique em Iniciar para começar uma sessão de foco
• Pause a qualquer momento para descansar
• Reinicie para começar de novo
• Alterne entre as fases de foco e de intervalo</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>Do seu jeito</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• Ajuste a duração do foco e do intervalo
• Escolha uma de nossas estações de música ou adicione a sua
• Ative a transição automática entre as fases
• Personalize os sons de notificação</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>Ative a música de fundo para melhorar a concentração. Escolha Lo-Fi, Ambient ou outras estações nas configurações.</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>Dicas</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• Padrão: 25 min de foco, 5 min de intervalo (técnica Pomodoro)
• O volume da música pode ser ajustado nas configurações
• Mudanças nas configurações não interrompem a sessão em andamento
• Acesse esta ajuda a qualquer momento pelo menu</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>Você pode acessar este guia a qualquer momento: barra de menus → Como usar</translation>
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
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Durações</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportamento</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
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
        <translation>Foco</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Intervalo</translation>
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
        <translation>Transição automática</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>Iniciar automaticamente a próxima fase quando o temporizador chegar a 0</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>Tique-taque da contagem regressiva</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>Fim do foco</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>Fim do intervalo</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Reproduzir %1</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>Ativar música durante o foco</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>Ativar música no intervalo</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Estação</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL personalizada</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
</TS>
