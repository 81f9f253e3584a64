// SPDX-License-Identifier: MIT
#include "desktop/status_item/DesktopStatusItem.h"

#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/StatusAnchor.h"
#include "desktop/status_item/StatusPicture.h"
#include "desktop/status_item/StripWindow.h"
#include "desktop/status_item/X11Pointer.h"
#include "desktop/windows/FlippedGeometry.h"
#include "style/TextStyle.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>

#include <chrono>
#include <cmath>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

namespace {

constexpr auto patienceForHost = 2s;

// Twice what bars usually give an item; they scale pictures down, never up.
constexpr int wideHeight = 48;
constexpr int squareSide = 48;

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

DesktopStatusItem::DesktopStatusItem(ClickGesture& gesture, Dispatcher dispatch, QDBusConnection bus) :
    m_gesture(gesture),
    m_dispatch(std::move(dispatch)),
    m_bus(std::move(bus)),
    m_hosts(m_bus),
    m_item(m_bus, [this](ClickEvent::Kind kind, QPoint claimed) { clickedInBar(kind, claimed); }),
    m_exportedMenu(m_bus,
        {[this] { m_gesture.menuRequested(); }, [this] { m_gesture.menuOpened(); },
            [this] { m_gesture.menuClosed(); }}),
    m_popUpMenu({[this] { m_gesture.menuOpened(); }, [this] { m_gesture.menuClosed(); }})
{
    m_stripDelay.setSingleShot(true);
    m_stripDelay.setInterval(patienceForHost);
    connect(&m_stripDelay, &QTimer::timeout, this, &DesktopStatusItem::showStrip);
    connect(&m_hosts, &StatusHostMonitor::watcherMissing, this, &DesktopStatusItem::showStrip);
    connect(&m_hosts, &StatusHostMonitor::watcherAppeared, this, [this] { m_item.registerWithWatcher(); });
    connect(&m_hosts, &StatusHostMonitor::hostChanged, this, &DesktopStatusItem::hostChanged);
    qApp->installEventFilter(this);
    m_stripDelay.start();
}

DesktopStatusItem::~DesktopStatusItem()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
}

void DesktopStatusItem::setMenu(std::shared_ptr<Menu> menu)
{
    m_exportedMenu.setMenu(menu);
    m_popUpMenu.setMenu(std::move(menu));
}

void DesktopStatusItem::menuDidChange()
{
    m_exportedMenu.menuDidChange();
    m_popUpMenu.menuDidChange();
}

void DesktopStatusItem::popUpMenu()
{
    m_popUpMenu.popUp(anchor().value_or(placeOfUse()));
}

bool DesktopStatusItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        drawPicture();
    return QObject::eventFilter(watched, event);
}

void DesktopStatusItem::setFont(double points, FontWeight weight)
{
    m_font = QGuiApplication::font();
    m_font.setPixelSize(static_cast<int>(std::lround(points * textScale(m_font))));
    m_font.setWeight(weight == FontWeight::bold ? QFont::Bold
            : weight == FontWeight::semibold    ? QFont::DemiBold
                                                : QFont::Normal);
    if (m_strip)
        m_strip->setTextFont(m_font);
    drawPicture();
}

void DesktopStatusItem::setToolTip(const std::string& text)
{
    m_toolTip = QString::fromStdString(text);
    m_item.setToolTip(m_toolTip);
    if (m_strip)
        m_strip->setToolTip(m_toolTip);
}

void DesktopStatusItem::setTitle(const std::string& title)
{
    auto text = QString::fromStdString(title);
    if (text == m_title)
        return;
    m_title = std::move(text);
    m_item.setLabel(m_title, m_traits.shape == TimeShape::label);
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
    if (!m_hosts.host()) {
        m_stripDelay.start();
        return;
    }
    m_stripDelay.stop();
    if (m_strip) {
        m_strip.reset();
        m_lastAnchor.reset();
    }
    m_traits = recognizeStatusHost(*m_hosts.host());
    m_exportedMenu.setLeadingItem(m_traits.leftClickOpensMenu ? panelItem() : nullptr);
    drawPicture();
}

void DesktopStatusItem::showStrip()
{
    m_stripDelay.stop();
    m_strip = std::make_unique<StripWindow>([this](ClickEvent::Kind kind, bool control) { clicked({kind, control}); });
    m_strip->setTextFont(m_font);
    m_strip->setToolTip(m_toolTip);
    m_strip->setText(m_title);
    m_strip->setAppearsDisabled(m_appearsDisabled);
    m_strip->show();
}

void DesktopStatusItem::drawPicture()
{
    if (!m_hosts.host() || m_title.isEmpty())
        return;
    const auto ink = statusPictureInk(m_traits.barIsAlwaysDark || desktopIsDark(), m_appearsDisabled);
    switch (m_traits.shape) {
    case TimeShape::label:
        m_item.setPicture(timerStatusPicture(squareSide, ink));
        break;
    case TimeShape::widePicture:
        m_item.setPicture(wideStatusPicture(m_title, m_font, wideHeight, ink));
        break;
    case TimeShape::squarePicture:
        m_item.setPicture(squareStatusPicture(m_title, m_font, squareSide, ink));
        break;
    }
}

void DesktopStatusItem::clickedInBar(ClickEvent::Kind kind, QPoint claimed)
{
    const auto surroundings = clickSurroundings(claimed);
    if (const auto found = statusAnchor(surroundings.place))
        m_lastAnchor = toLogical(*found).toAlignedRect();
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
    return m_strip ? m_strip->geometry() : m_lastAnchor;
}

std::shared_ptr<MenuItem> DesktopStatusItem::panelItem()
{
    auto item = std::make_shared<MenuItem>();
    item->title = "Show/Hide Timer";
    item->action = [this](const MenuItem&) { clicked({}); };
    return item;
}

} // namespace velto
