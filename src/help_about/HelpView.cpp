// SPDX-License-Identifier: MIT
#include "help_about/HelpView.h"

#include "help_about/ApplicationIcon.h"
#include "help_about/HelpSection.h"
#include "style/Divider.h"
#include "style/Paragraph.h"
#include "style/ScrollBar.h"
#include "style/Stack.h"
#include "style/TextLabel.h"

#include <QEvent>

namespace velto {

namespace {

constexpr int padding = 32;
constexpr int spacing = 24;
constexpr int leastSpacing = 6;

} // namespace

HelpView::HelpView(QSize size) : m_size(size)
{
    auto* icon = new ApplicationIcon(80, 16);
    auto* welcome = new TextLabel(tr("Welcome to velto"), TextStyle::title);
    auto* purpose = new Paragraph(tr("A simple focus timer for productivity sessions"), TextStyle::body,
        ColorName::secondaryLabel, Qt::AlignHCenter);
    auto* start = new HelpSection("play.circle.fill", tr("Getting Started"),
        tr("Find velto in your menu bar at the top of your screen:\n"
           "• Left click the icon to see your timer\n"
           "• Right click the icon to open the settings"));
    auto* controls = new HelpSection("timer.circle.fill", tr("Timer Controls"),
        tr("• Click Start to begin a focus session\n"
           "• Pause anytime to take a break\n"
           "• Reset to start over\n"
           "• Switch between Focus and Break phases"));
    auto* customize = new HelpSection("gearshape.fill", tr("Customize Your Experience"),
        tr("• Adjust focus and break durations\n"
           "• Choose one of our music presets or add your own\n"
           "• Enable auto-transition between phases\n"
           "• Customize notification sounds"));
    auto* music = new HelpSection("music.note", tr("Music"),
        tr("Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in "
           "Settings."));
    auto* tips = new HelpSection("lightbulb.fill", tr("Pro Tips"),
        tr("• Default: 25 min focus, 5 min break (Pomodoro Technique)\n"
           "• Music volume can be adjusted in settings\n"
           "• Settings changes won't interrupt active sessions\n"
           "• Access this help anytime from the menu"));
    auto* footer = new Paragraph(tr("You can access this guide anytime from the menu bar → How to Use"),
        TextStyle::footnote, ColorName::secondaryLabel, Qt::AlignHCenter);
    welcome->setAlignment(Qt::AlignHCenter);

    auto* header = column({.spacing = 8, .padding = {0, 0, 0, 8}}, icon, filling(welcome), filling(purpose));
    auto* page = new QWidget;
    m_page = column({.spacing = spacing, .padding = {padding, padding, padding, padding}}, filling(header),
        filling(new Divider), filling(start), filling(controls), filling(customize), filling(music), filling(tips),
        filling(new Divider), filling(footer), spacer);
    page->setLayout(m_page);

    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBar(new ScrollBar);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

bool HelpView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        fit();
    return QScrollArea::eventFilter(watched, event);
}

void HelpView::resizeEvent(QResizeEvent* event)
{
    fit();
    QScrollArea::resizeEvent(event);
}

void HelpView::fit()
{
    // The text is as wide beside a scroll bar as without.
    const auto room = size() - QSize(padding - m_page->contentsMargins().right(), 0);
    const int fitting = fittingSpacing(*m_page, room, spacing);
    const bool scrolls = fitting < leastSpacing;
    m_page->setContentsMargins(
        padding, padding, scrolls ? padding - verticalScrollBar()->sizeHint().width() : padding, padding);
    if (const int wanted = scrolls ? spacing : fitting; wanted != m_page->spacing())
        m_page->setSpacing(wanted);
}

} // namespace velto
