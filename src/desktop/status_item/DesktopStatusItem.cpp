// SPDX-License-Identifier: MIT
#include "desktop/status_item/DesktopStatusItem.h"

#include "desktop/bus/SessionBus.h"
#include "desktop/menus/DBusMenu.h"
#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/StatusAnchor.h"
#include "desktop/status_item/StatusHostMonitor.h"
#include "desktop/status_item/StatusNotifierItem.h"
#include "desktop/status_item/StatusPicture.h"
#include "desktop/status_item/StripWindow.h"
#include "desktop/status_item/X11Pointer.h"
#include "desktop/windows/FlippedGeometry.h"
#include "desktop/x11/Pixels.h"
#include "desktop/x11/X11Desktop.h"
#include "platform/Text.h"
#include "style/TextStyle.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QScreen>
#include <QWindow>

#include <chrono>
#include <cmath>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

namespace {

constexpr auto patienceForHost = 2s;

// Twice what bars usually give an item; they scale pictures down, never up.
constexpr int wideHeight = 48;
constexpr int timerSide = 48;

/// The control that has the keyboard, else the pointer.
QRect placeOfUse()
{
    const auto* control = QApplication::focusWidget();
    return control ? QRect(control->mapToGlobal(QPoint()), control->size()) : QRect(QCursor::pos(), QSize(1, 1));
}

bool desktopIsDark()
{
    return QGuiApplication::palette().color(QPalette::WindowText).lightness() > 127;
}

} // namespace

/// The program's presence in the panel bar, for one connection to the bus.
struct DesktopStatusItem::OnBus {
    OnBus(const QDBusConnection& bus, StatusNotifierItem::ClickHandler onClick, DBusMenu::Handlers handlers) :
        hosts(bus),
        item(bus, std::move(onClick)),
        menu(bus, std::move(handlers))
    {
        connect(&hosts, &StatusHostMonitor::watcherAppeared, &item, &StatusNotifierItem::registerWithWatcher);
    }

    StatusHostMonitor hosts;
    StatusNotifierItem item;
    DBusMenu menu;
};

DesktopStatusItem::DesktopStatusItem(ClickGesture& gesture, Dispatcher dispatch, SessionBus& bus) :
    m_gesture(gesture),
    m_dispatch(std::move(dispatch)),
    m_bus(bus),
    m_popUpMenu({[this] {
                     m_gesture.menuOpened();
                     return keyboardForMenu();
                 },
        [this] {
            m_gesture.menuClosed();
            if (m_menuKeyboard)
                m_menuKeyboard.release()->deleteLater();
        }})
{
    m_stripDelay.setSingleShot(true);
    m_stripDelay.setInterval(patienceForHost);
    connect(&m_stripDelay, &QTimer::timeout, this, &DesktopStatusItem::showStrip);
    connect(&m_barColor, &BarColor::changed, this, &DesktopStatusItem::drawPicture);
    connect(&m_bus, &SessionBus::found, this, &DesktopStatusItem::enterBus);
    connect(&m_bus, &SessionBus::lost, this, &DesktopStatusItem::leaveBus);
    qApp->installEventFilter(this);
    if (m_bus.connection().isConnected())
        enterBus();
    m_stripDelay.start();
}

DesktopStatusItem::~DesktopStatusItem() = default;

void DesktopStatusItem::enterBus()
{
    m_onBus = std::make_unique<OnBus>(
        m_bus.connection(), [this](ClickEvent::Kind kind, QPoint claimed) { clickedInBar(kind, claimed); },
        DBusMenu::Handlers{[this] { m_gesture.menuRequested(); }, [this] { m_gesture.menuOpened(); },
            [this] { m_gesture.menuClosed(); }});
    m_bus.connection().connect({}, {}, QStringLiteral("org.xfce.Xfconf"), QStringLiteral("PropertyChanged"),
        {QStringLiteral("xfce4-panel")}, {}, &m_barColor, SLOT(lookSoon()));
    m_bus.connection().connect({}, {}, QStringLiteral("org.kde.KGlobalSettings"), QStringLiteral("notifyChange"),
        &m_barColor, SLOT(lookSoon()));
    connect(&m_onBus->hosts, &StatusHostMonitor::watcherMissing, this, &DesktopStatusItem::showStrip);
    connect(&m_onBus->hosts, &StatusHostMonitor::hostChanged, this, &DesktopStatusItem::hostChanged);
    m_onBus->item.setToolTip(m_toolTip);
    m_onBus->item.setLabel(m_title, false);
    m_onBus->menu.setMenu(m_menu);
}

void DesktopStatusItem::leaveBus()
{
    m_onBus.reset();
    showStrip();
}

bool DesktopStatusItem::hasHost() const
{
    return m_onBus && m_onBus->hosts.host();
}

void DesktopStatusItem::setMenu(std::shared_ptr<Menu> menu)
{
    m_menu = std::move(menu);
    if (m_onBus)
        m_onBus->menu.setMenu(m_menu);
    m_popUpMenu.setMenu(m_menu);
}

void DesktopStatusItem::menuDidChange()
{
    if (m_onBus)
        m_onBus->menu.menuDidChange();
    m_popUpMenu.menuDidChange();
}

void DesktopStatusItem::popUpMenu()
{
    m_popUpMenu.popUp(anchor().value_or(placeOfUse()));
}

/// In a session of Wayland a menu has no keyboard of its own, and is told of a press elsewhere only by the loss of it.
QWindow* DesktopStatusItem::keyboardForMenu()
{
    auto* focused = QGuiApplication::focusWindow();
    if (focused && !focused->isVisible())
        focused = nullptr; // Hidden with the keyboard, which Qt may hear of late.
    if (focused || x11::seesTheScreen() || !x11::connection())
        return focused;
    m_menuKeyboard = std::make_unique<FloatingWindow>(
        std::make_unique<QWidget>(), [this] { m_popUpMenu.close(); }, Focus::taken);
    m_menuKeyboard->setGeometry(QRect(anchor().value_or(placeOfUse()).topLeft(), QSize(1, 1)));
    m_menuKeyboard->show();
    m_menuKeyboard->takeKeyboard();
    return m_menuKeyboard->windowHandle();
}

bool DesktopStatusItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
        m_barColor.lookSoon();
        drawPicture();
    }
    return QObject::eventFilter(watched, event);
}

void DesktopStatusItem::setFont(double points)
{
    m_font = QGuiApplication::font();
    m_font.setPixelSize(static_cast<int>(std::lround(points * textScale(m_font))));
    m_font.setWeight(QFont::DemiBold);
    m_glyphs.reset();
    if (m_strip)
        m_strip->setTextFont(m_font);
    drawPicture();
}

void DesktopStatusItem::setToolTip(const std::string& text)
{
    m_toolTip = QString::fromStdString(text);
    if (m_onBus)
        m_onBus->item.setToolTip(m_toolTip);
    if (m_strip)
        m_strip->setToolTip(m_toolTip);
}

void DesktopStatusItem::setTitle(const std::string& title)
{
    auto text = QString::fromStdString(title);
    if (text == m_title)
        return;
    m_title = std::move(text);
    if (m_onBus)
        m_onBus->item.setLabel(m_title, m_traits.shape == TimeShape::label);
    if (m_strip)
        m_strip->setText(m_title);
    drawPicture();
}

void DesktopStatusItem::setAppearsDisabled(bool disabled)
{
    if (disabled == m_appearsDisabled)
        return;
    m_appearsDisabled = disabled;
    if (m_strip)
        m_strip->setAppearsDisabled(disabled);
    drawPicture();
}

void DesktopStatusItem::setAction(std::function<void()> action)
{
    m_action = std::move(action);
}

std::optional<Rect> DesktopStatusItem::frame() const
{
    if (const auto rect = anchor())
        return rectFromQt(*rect);
    return std::nullopt;
}

void DesktopStatusItem::hostChanged()
{
    if (!hasHost()) {
        m_stripDelay.start();
        return;
    }
    m_stripDelay.stop();
    if (m_strip) {
        m_strip.reset();
        m_lastAnchor.reset();
    }
    m_traits = recognizeStatusHost(*m_onBus->hosts.host());
    m_glyphs.reset();
    // AppIndicator overlooks the text that an item comes with, from version 59 on, and looks again when it comes again.
    if (m_traits.shape == TimeShape::label && m_traits.leftClickOpensMenu)
        QTimer::singleShot(1s, &m_onBus->item, &StatusNotifierItem::registerWithWatcher);
    m_barColor.lookNow();
    m_onBus->menu.setLeadingItem(m_traits.leftClickOpensMenu ? panelItem() : nullptr);
    drawPicture();
}

void DesktopStatusItem::showStrip()
{
    m_stripDelay.stop();
    if (m_strip)
        return;
    m_strip = std::make_unique<StripWindow>(
        [this](ClickEvent::Kind kind, bool control) {
            clicked({kind, control});
        },
        m_bus.connection());
    m_strip->setTextFont(m_font);
    m_strip->setToolTip(m_toolTip);
    m_strip->setText(m_title);
    m_strip->setAppearsDisabled(m_appearsDisabled);
    m_strip->show();
}

void DesktopStatusItem::drawPicture()
{
    if (!hasHost() || m_title.isEmpty())
        return;
    m_barColor.refresh();
    const auto ink = statusPictureInk(barColor(), m_appearsDisabled);
    switch (m_traits.shape) {
    case TimeShape::label:
        m_onBus->item.setPictures({timerStatusPicture(timerSide, ink)});
        break;
    case TimeShape::widePicture:
        if (!m_glyphs)
            m_glyphs = wideStatusGlyphs(m_font);
        m_onBus->item.setPictures({wideStatusPicture(m_title, *m_glyphs, wideHeight, ink)});
        break;
    case TimeShape::squarePicture:
        if (!m_glyphs)
            m_glyphs = squareStatusGlyphs(m_font);
        m_onBus->item.setPictures(squareStatusPictures(m_title, *m_glyphs, ink));
        break;
    }
}

QColor DesktopStatusItem::barColor() const
{
    const bool seemsDark = m_traits.barIsDark || desktopIsDark();
    return m_barColor.color().value_or(seemsDark ? Qt::black : Qt::white);
}

void DesktopStatusItem::clickedInBar(ClickEvent::Kind kind, QPoint claimed)
{
    const auto surroundings = clickSurroundings(claimed, m_traits.tellsPlace);
    if (const auto found = statusAnchor(surroundings.place)) {
        m_lastAnchor = toPoints(*found).toAlignedRect();
        m_barColor.setItem(*m_lastAnchor);
    }
    clicked({kind, surroundings.controlIsHeld});
}

void DesktopStatusItem::clicked(ClickEvent click)
{
    if (click.kind != ClickEvent::Kind::rightMouseUp && m_gesture.claimClick())
        return;
    if (m_action)
        m_dispatch(click, m_action);
}

std::optional<QRect> DesktopStatusItem::anchor() const
{
    if (m_strip)
        return m_strip->geometry();
    const auto* screen = QGuiApplication::primaryScreen();
    if (m_lastAnchor || !screen || !hasHost() || !m_traits.isAtTopRight)
        return m_lastAnchor;
    const auto bar = edgesAround(screen->availableGeometry(), screen->geometry()).front();
    return QRect(bar.right(), bar.top(), 1, bar.height());
}

std::shared_ptr<MenuItem> DesktopStatusItem::panelItem()
{
    auto item = std::make_shared<MenuItem>();
    item->title = translatable("Menu", "Show/Hide Timer");
    item->action = [this](const MenuItem&) { clicked({}); };
    return item;
}

} // namespace velto
