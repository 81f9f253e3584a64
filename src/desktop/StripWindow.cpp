// SPDX-License-Identifier: MIT
#include "desktop/StripWindow.h"

#include "desktop/X11Desktop.h"
#include "style/Colors.h"
#include "style/ContinuousRect.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr int distanceFromEdge = 6;
constexpr double sidePadding = 12;
constexpr double heightOfLine = 1.3;
constexpr double linePadding = 8;
constexpr double radius = 8;

/// A button named like the time it shows. The name changes silently: a reader asks for it, and is not
/// told of every second.
class StripAccessible : public QAccessibleWidget {
public:
    explicit StripAccessible(StripWindow* strip) : QAccessibleWidget(strip, QAccessible::Button), m_strip(*strip) { }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_strip.text() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            m_strip.click(ClickEvent::Kind::leftMouseUp, false);
        else if (name == showMenuAction())
            m_strip.click(ClickEvent::Kind::rightMouseUp, false);
    }

private:
    StripWindow& m_strip;
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* strip = qobject_cast<StripWindow*>(object);
    return strip ? new StripAccessible(strip) : nullptr;
}

/// Kept out of task bars and pagers, and on every workspace.
void stayOnEveryWorkspace(WId window)
{
    if (!x11::connection())
        return;
    const auto xWindow = static_cast<xcb_window_t>(window);
    const auto state = x11::atom("_NET_WM_STATE");
    auto states = x11::property(xWindow, state);
    for (const auto* name : {"_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
        if (const auto atom = x11::atom(name); std::ranges::find(states, atom) == states.end())
            states.push_back(atom);
    x11::setProperty(xWindow, state, XCB_ATOM_ATOM, states);
    constexpr std::uint32_t allDesktops = 0xffffffff;
    x11::setProperty(xWindow, x11::atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, {allDesktops});
}

} // namespace

StripWindow::StripWindow(ClickHandler onClick) :
    QWidget(nullptr,
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus
            | Qt::NoDropShadowWindowHint),
    m_onClick(std::move(onClick)),
    m_font(font())
{
    QAccessible::installFactory(makeAccessible);
    setObjectName(QStringLiteral("statusStrip"));
    setWindowTitle(QStringLiteral("velto"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &StripWindow::followScreen);
    followScreen();
}

void StripWindow::click(ClickEvent::Kind kind, bool control)
{
    m_onClick(kind, control);
}

void StripWindow::setText(const QString& text)
{
    if (text == m_text)
        return;
    const bool resizes = text.size() != m_text.size();
    m_text = text;
    if (resizes)
        place();
    update();
}

void StripWindow::setTextFont(const QFont& font)
{
    m_font = font;
    place();
    update();
}

void StripWindow::setAppearsDisabled(bool disabled)
{
    if (disabled == std::exchange(m_appearsDisabled, disabled))
        return;
    update();
}

QSize StripWindow::sizeHint() const
{
    const QFontMetricsF metrics(m_font);
    double width = 0;
    for (const auto character : m_text)
        width += character.isDigit() ? digitWidth() : metrics.horizontalAdvance(character);
    return QSizeF(width + 2 * sidePadding, metrics.height() * heightOfLine + linePadding).toSize();
}

bool StripWindow::event(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        update();
    return QWidget::event(event);
}

void StripWindow::showEvent(QShowEvent* event)
{
    stayOnEveryWorkspace(winId());
    place();
    QWidget::showEvent(event);
}

void StripWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), color(ColorName::windowBackground, *this));
    painter.setPen(QPen(color(ColorName::controlOutline, *this), 1));
    painter.drawPath(continuousRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius));

    auto ink = color(ColorName::label, *this);
    if (m_appearsDisabled)
        ink.setAlphaF(0.5F);
    painter.setPen(ink);
    painter.setFont(m_font);
    const QFontMetricsF metrics(m_font);
    double x = sidePadding;
    for (const auto character : m_text) {
        const double cell = character.isDigit() ? digitWidth() : metrics.horizontalAdvance(character);
        painter.drawText(QRectF(x, 0, cell, height()), Qt::AlignCenter, QString(character));
        x += cell;
    }
}

void StripWindow::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void StripWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (!rect().contains(event->position().toPoint()))
        return;
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    if (event->button() == Qt::LeftButton)
        click(ClickEvent::Kind::leftMouseUp, control);
    else if (event->button() == Qt::RightButton)
        click(ClickEvent::Kind::rightMouseUp, control);
    else if (event->button() == Qt::MiddleButton)
        click(ClickEvent::Kind::otherMouseUp, control);
}

void StripWindow::followScreen()
{
    if (const auto* screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::availableGeometryChanged, this, &StripWindow::place, Qt::UniqueConnection);
    place();
}

void StripWindow::place()
{
    const auto* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const auto usable = screen->availableGeometry();
    const auto size = sizeHint();
    setFixedSize(size);
    setMask(QRegion(continuousRoundedRect(QRectF(QPointF(), QSizeF(size)), radius).toFillPolygon().toPolygon()));
    move(usable.right() + 1 - distanceFromEdge - size.width(), usable.top() + distanceFromEdge);
}

double StripWindow::digitWidth() const
{
    const QFontMetricsF metrics(m_font);
    double width = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        width = std::max(width, metrics.horizontalAdvance(QLatin1Char(digit)));
    return std::ceil(width);
}

} // namespace velto
