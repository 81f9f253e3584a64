<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>タイマーの表示/非表示</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>自動切り替え</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>集中時間</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>休憩時間</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>集中中の音楽</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>休憩中の音楽</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>使い方</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>velto について</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n 分</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>カスタム…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>集中 %1 分 / 休憩 %2 分</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>現在のフェーズ</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>集中</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休憩</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>カスタム URL を編集…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>休憩を開始</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>集中を開始</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>休憩を一時停止</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>集中を一時停止</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>休憩をリセット</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>集中をリセット</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>カスタム URL</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>集中のためのゆったりしたビート</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>深宇宙のアンビエント</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>ダウンテンポのグルーヴ</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>ハッカー/サイバーパンク風</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>ビートのないアンビエント</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>甘美でまろやか</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>自分のストリーミング URL</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>集中: %1 分  •  休憩: %2 分</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>気を散らさず、シンプルに集中するためのタイマーです。</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>コーヒーをおごる</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 - 集中タイマー</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2. All rights reserved.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>集中</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休憩</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>velto の使い方</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>velto へようこそ</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>作業をはかどらせるシンプルな集中タイマー</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>velto は画面上部のメニューバーにあります:
• アイコンを左クリックするとタイマーが表示されます
• アイコンを右クリックすると設定を開けます</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>タイマーの操作</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>•「開始」をクリックすると集中セッションが始まります
• いつでも一時停止してひと息つけます
• リセットすると最初からやり直せます
• 集中と休憩のフェーズを切り替えられます</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>お好みに合わせて</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• 集中と休憩の時間を調整できます
• 用意された音楽から選ぶか、自分で追加できます
• フェーズの自動切り替えを有効にできます
• 通知音をカスタマイズできます</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>BGM を有効にすると集中力が高まります。設定で Lo-Fi や Ambient などから選べます。</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• 既定値: 集中 25 分、休憩 5 分 (ポモドーロ・テクニック)
• 音楽の音量は設定で調整できます
• 設定を変更しても実行中のセッションは中断されません
• このヘルプはいつでもメニューから開けます</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>このガイドはいつでも開けます: メニューバー → 使い方</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>集中</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休憩</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>分</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>自動切り替え</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>タイマーが 0 になると次のフェーズを自動的に開始します</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>カウントダウン音</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>集中の終了</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>休憩の終了</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>%1を再生</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>集中中に音楽を流す</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>休憩中に音楽を流す</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>カスタム URL</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
</TS>
