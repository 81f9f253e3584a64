<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>显示/隐藏计时器</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>自动切换</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>专注时长</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>休息时长</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>专注音乐</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>休息音乐</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>使用方法</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>关于 velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>自定义…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>专注 %1 分钟 / 休息 %2 分钟</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>当前阶段</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>专注</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休息</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>编辑自定义网址…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>开始休息</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>开始专注</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>暂停休息</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>暂停专注</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>重置休息</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>重置专注</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>自定义网址</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>助您专注的舒缓节拍</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>深空氛围音乐</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>慢节奏律动</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>黑客/赛博朋克风格</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>无节拍氛围音乐</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>感性而柔和</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>您自己的流媒体网址</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>专注：%1 分钟  •  休息：%2 分钟</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>一款专注计时器，让每次专注简单而不受打扰。</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>支持</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>请我喝杯咖啡</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>%1 - 专注计时器</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>© %1 %2。保留所有权利。</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>专注</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休息</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>velto 使用方法</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>欢迎使用 velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>一款助您提高效率的简单专注计时器</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>入门</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>velto 位于屏幕顶部的菜单栏中：
• 左键点击图标可查看计时器
• 右键点击图标可打开设置</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>计时器控制</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• 点击“开始”进入一次专注
• 可随时暂停，稍作休息
• 重置以重新开始
• 在专注和休息阶段之间切换</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>按您的喜好定制</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• 调整专注和休息的时长
• 选择我们提供的电台或添加您自己的电台
• 启用阶段之间的自动切换
• 自定义提示音</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>启用背景音乐有助于集中注意力。可在设置中选择 Lo-Fi、Ambient 或其他电台。</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>小贴士</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• 默认：专注 25 分钟，休息 5 分钟（番茄工作法）
• 可在设置中调整音乐音量
• 更改设置不会中断正在进行的专注
• 可随时从菜单打开此帮助</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>您可以随时打开本指南：菜单栏 → 使用方法</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>行为</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>专注</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休息</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>自动切换</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>计时器归零时自动开始下一阶段</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>倒计时滴答声</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>专注结束</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>休息结束</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>播放%1</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>专注时播放音乐</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>休息时播放音乐</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>电台</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>自定义网址</translation>
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
