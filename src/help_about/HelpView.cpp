// SPDX-License-Identifier: MIT
#include "help_about/HelpView.h"

#include "help_about/ApplicationIcon.h"
#include "help_about/HelpSection.h"
#include "style/Divider.h"
#include "style/ScrollBar.h"
#include "style/Stack.h"
#include "style/TextLabel.h"

namespace velto {

HelpView::HelpView(QSize size) : m_size(size)
{
    auto* icon = new ApplicationIcon(80, 16);
    auto* welcome = new TextLabel("Welcome to velto", TextStyle::title, ColorName::label, QFont::Bold);
    auto* purpose
        = new TextLabel("A simple focus timer for productivity sessions", TextStyle::body, ColorName::secondaryLabel);
    auto* start = new HelpSection("play.circle.fill", "Getting Started",
        "Find velto in your menu bar at the top of your screen:\n"
        "• Left click the icon to see your timer\n"
        "• Right click the icon to open the settings");
    auto* controls = new HelpSection("timer.circle.fill", "Timer Controls",
        "• Click Start to begin a focus session\n"
        "• Pause anytime to take a break\n"
        "• Reset to start over\n"
        "• Switch between Focus and Break phases");
    auto* customize = new HelpSection("gearshape.fill", "Customize Your Experience",
        "• Adjust focus and break durations\n"
        "• Choose one of our music presets or add your own\n"
        "• Enable auto-transition between phases\n"
        "• Customize notification sounds");
    auto* music = new HelpSection("music.note", "Music",
        "Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.");
    auto* tips = new HelpSection("lightbulb.fill", "Pro Tips",
        "• Default: 25 min focus, 5 min break (Pomodoro Technique)\n"
        "• Music volume can be adjusted in settings\n"
        "• Settings changes won't interrupt active sessions\n"
        "• Access this help anytime from the menu");
    auto* footer = new TextLabel("You can access this guide anytime from the menu bar → How to Use",
        TextStyle::footnote, ColorName::secondaryLabel);
    for (auto* label : {welcome, purpose, footer}) {
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
    }

    auto* header = column({.spacing = 8, .padding = {0, 0, 0, 8}}, icon, filling(welcome), filling(purpose));
    auto* page = new QWidget;
    page->setLayout(column({.spacing = 24, .padding = {32, 32, 32, 32}}, filling(header), filling(new Divider),
        filling(start), filling(controls), filling(customize), filling(music), filling(tips), filling(new Divider),
        filling(footer), spacer));

    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBar(new ScrollBar(Qt::Vertical));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

} // namespace velto
