<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Menu</name>
    <message>
        <source>Show/Hide Timer</source>
        <translation>أظهِر المؤقّت أو أخفِه</translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>الانتقال التلقائي</translation>
    </message>
    <message>
        <source>Focus Duration</source>
        <translation>مدة التركيز</translation>
    </message>
    <message>
        <source>Break Duration</source>
        <translation>مدة الاستراحة</translation>
    </message>
    <message>
        <source>Focus Music</source>
        <translation>موسيقى التركيز</translation>
    </message>
    <message>
        <source>Break Music</source>
        <translation>موسيقى الاستراحة</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>طريقة الاستخدام</translation>
    </message>
    <message>
        <source>About velto</source>
        <translation>عن velto</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>أنهِ</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n دقيقة</numerusform>
            <numerusform>دقيقة واحدة</numerusform>
            <numerusform>دقيقتان</numerusform>
            <numerusform>%n دقائق</numerusform>
            <numerusform>%n دقيقة</numerusform>
            <numerusform>%n دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>مخصّص…</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>مدد جاهزة</translation>
    </message>
    <message>
        <source>%1m focus / %2m break</source>
        <translation>تركيز %1 د / استراحة %2 د</translation>
    </message>
    <message>
        <source>Current Phase</source>
        <translation>المرحلة الحالية</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>التركيز</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>الاستراحة</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Edit Custom URL…</source>
        <translation>حرّر العنوان المخصّص…</translation>
    </message>
    <message>
        <source>Start Break</source>
        <translation>ابدأ الاستراحة</translation>
    </message>
    <message>
        <source>Start Focus</source>
        <translation>ابدأ التركيز</translation>
    </message>
    <message>
        <source>Pause Break</source>
        <translation>أوقف الاستراحة مؤقتًا</translation>
    </message>
    <message>
        <source>Pause Focus</source>
        <translation>أوقف التركيز مؤقتًا</translation>
    </message>
    <message>
        <source>Reset Break</source>
        <translation>أعِد ضبط الاستراحة</translation>
    </message>
    <message>
        <source>Reset Focus</source>
        <translation>أعِد ضبط التركيز</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>عنوان مخصّص</translation>
    </message>
</context>
<context>
    <name>MusicPreset</name>
    <message>
        <source>Chill beats for focus</source>
        <translation>إيقاعات هادئة للتركيز</translation>
    </message>
    <message>
        <source>Deep space ambient</source>
        <translation>موسيقى محيطية من أعماق الفضاء</translation>
    </message>
    <message>
        <source>Downtempo grooves</source>
        <translation>إيقاعات بطيئة</translation>
    </message>
    <message>
        <source>Hacker/cyberpunk vibes</source>
        <translation>أجواء الهاكرز والسايبربنك</translation>
    </message>
    <message>
        <source>Beatless ambient</source>
        <translation>موسيقى محيطية بلا إيقاع</translation>
    </message>
    <message>
        <source>Sensuous &amp; mellow</source>
        <translation>حسّية وناعمة</translation>
    </message>
    <message>
        <source>Your own streaming URL</source>
        <translation>عنوان البث الخاص بك</translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
</context>
<context>
    <name>TimerDisplay</name>
    <message>
        <source>Focus: %1m  •  Break: %2m</source>
        <translation>التركيز: %1 د  •  الاستراحة: %2 د</translation>
    </message>
</context>
<context>
    <name>velto::AboutView</name>
    <message>
        <source>About %1</source>
        <translation>عن %1</translation>
    </message>
    <message>
        <source>A focus timer companion built to keep sessions simple and distraction-free.</source>
        <translation>مؤقّت تركيز صُمّم لتبقى جلساتك بسيطة وخالية من المشتّتات.</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>الدعم</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Buy Me a Coffee</source>
        <translation>ادعُني إلى قهوة</translation>
    </message>
    <message>
        <source>%1 - Focus Timer</source>
        <translation>‏%1 - مؤقّت تركيز</translation>
    </message>
    <message>
        <source>© %1 %2. All rights reserved.</source>
        <translation>‏© %1 %2. جميع الحقوق محفوظة.</translation>
    </message>
</context>
<context>
    <name>velto::CircularProgressView</name>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
</context>
<context>
    <name>velto::ContentView</name>
    <message>
        <source>Start</source>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>أوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>أعِد الضبط</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>التركيز</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>الاستراحة</translation>
    </message>
</context>
<context>
    <name>velto::HelpView</name>
    <message>
        <source>How to Use velto</source>
        <translation>طريقة استخدام velto</translation>
    </message>
    <message>
        <source>Welcome to velto</source>
        <translation>مرحبًا بك في velto</translation>
    </message>
    <message>
        <source>A simple focus timer for productivity sessions</source>
        <translation>مؤقّت تركيز بسيط لجلسات عمل مُنتِجة</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>الخطوات الأولى</translation>
    </message>
    <message>
        <source>Find velto in your menu bar at the top of your screen:
• Left click the icon to see your timer
• Right click the icon to open the settings</source>
        <translation>تجد velto في شريط القوائم أعلى الشاشة:
• انقر الأيقونة بالزر الأيسر لترى المؤقّت
• انقر الأيقونة بالزر الأيمن لتفتح الإعدادات</translation>
    </message>
    <message>
        <source>Timer Controls</source>
        <translation>التحكم في المؤقّت</translation>
    </message>
    <message>
        <source>• Click Start to begin a focus session
• Pause anytime to take a break
• Reset to start over
• Switch between Focus and Break phases</source>
        <translation>• انقر «ابدأ» لبدء جلسة تركيز
• أوقف المؤقّت مؤقتًا متى شئت لتستريح
• أعِد الضبط لتبدأ من جديد
• بدّل بين مرحلتَي التركيز والاستراحة</translation>
    </message>
    <message>
        <source>Customize Your Experience</source>
        <translation>كما يناسبك</translation>
    </message>
    <message>
        <source>• Adjust focus and break durations
• Choose one of our music presets or add your own
• Enable auto-transition between phases
• Customize notification sounds</source>
        <translation>• اضبط مدة التركيز ومدة الاستراحة
• اختر إحدى محطاتنا أو أضف محطتك
• فعّل الانتقال التلقائي بين المراحل
• خصّص أصوات التنبيه</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>الموسيقى</translation>
    </message>
    <message>
        <source>Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.</source>
        <translation>فعّل موسيقى الخلفية لتركيز أفضل. اختر Lo-Fi أو Ambient أو غيرهما من المحطات في الإعدادات.</translation>
    </message>
    <message>
        <source>Pro Tips</source>
        <translation>نصائح</translation>
    </message>
    <message>
        <source>• Default: 25 min focus, 5 min break (Pomodoro Technique)
• Music volume can be adjusted in settings
• Settings changes won&apos;t interrupt active sessions
• Access this help anytime from the menu</source>
        <translation>• المبدئي: 25 د تركيز، 5 د استراحة (تقنية بومودورو)
• يمكن ضبط شدة صوت الموسيقى من الإعدادات
• لا يقطع تغيير الإعدادات الجلسة الجارية
• يمكنك فتح هذه المساعدة من القائمة متى شئت</translation>
    </message>
    <message>
        <source>You can access this guide anytime from the menu bar → How to Use</source>
        <translation>يمكنك فتح هذا الدليل متى شئت: شريط القوائم ← طريقة الاستخدام</translation>
    </message>
</context>
<context>
    <name>velto::SettingsSheet</name>
    <message>
        <source>Apply</source>
        <translation>طبّق</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>المدد</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>السلوك</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>الأصوات</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>الموسيقى</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>التركيز</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>الاستراحة</translation>
    </message>
    <message numerus="yes">
        <source>minutes</source>
        <translation>
            <numerusform>دقيقة</numerusform>
            <numerusform>دقيقة</numerusform>
            <numerusform>دقيقة</numerusform>
            <numerusform>دقائق</numerusform>
            <numerusform>دقيقة</numerusform>
            <numerusform>دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto-Transition</source>
        <translation>الانتقال التلقائي</translation>
    </message>
    <message>
        <source>Automatically start the next phase when timer reaches 0</source>
        <translation>ابدأ المرحلة التالية تلقائيًا عند وصول المؤقّت إلى 0</translation>
    </message>
    <message>
        <source>Countdown Tick</source>
        <translation>دقّات العد التنازلي</translation>
    </message>
    <message>
        <source>Focus End</source>
        <translation>نهاية التركيز</translation>
    </message>
    <message>
        <source>Break End</source>
        <translation>نهاية الاستراحة</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>شغّل %1</translation>
    </message>
    <message>
        <source>Enable music during focus</source>
        <translation>شغّل موسيقى أثناء التركيز</translation>
    </message>
    <message>
        <source>Enable music during break</source>
        <translation>شغّل موسيقى أثناء الاستراحة</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>المحطة</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>عنوان مخصّص</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>شدة الصوت</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
</TS>
