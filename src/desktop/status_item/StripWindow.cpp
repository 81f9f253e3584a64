// SPDX-License-Identifier: MIT
#include "desktop/status_item/StripWindow.h"

#include "style/ClockGlyphs.h"
#include "style/Colors.h"
#include "style/Drawing.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace velto {

namespace {

constexpr int distanceFromEdge = 6;
/// For the buttons at the top right of a window that fills the usable area.
constexpr int roomForButtons = 168;
constexpr int sidePadding = 12;
constexpr int linePadding = 6;
constexpr double radius = 8;
constexpr auto edge = ColorName::controlOutline;
constexpr QRgb inkInBar = 0xfff2f2f2;

} // namespace

/// The visible part of the strip, which takes the clicks.
class StripWindow::Face final : public QWidget {
public:
    using DragHandler = std::function<void(int x)>;

    explicit Face(ClickHandler onClick) : m_onClick(std::move(onClick))
    {
        QAccessible::installFactory(makeAccessible);
        setContextMenuPolicy(Qt::PreventContextMenu);
    }

    void click(ClickEvent::Kind kind, bool control) { m_onClick(kind, control); }

    void setText(const QString& text)
    {
        m_text = text;
        update();
    }

    void setDragHandler(DragHandler onDrag) { m_onDrag = std::move(onDrag); }

    /// As a text of a bar, or with a face of its own.
    void setStyle(bool isInBar, const QFont& font)
    {
        m_isInBar = isInBar;
        setFont(font);
        m_glyphs = ClockGlyphs(font);
        update();
    }

    void setAppearsDisabled(bool disabled)
    {
        m_appearsDisabled = disabled;
        update();
    }

    [[nodiscard]] const QString& text() const { return m_text; }

    [[nodiscard]] QSize sizeHint() const override
    {
        const auto height = static_cast<int>(std::ceil(QFontMetricsF(font()).height()));
        return {m_glyphs.crispWidth(m_text, digitHeight()) + 2 * sidePadding, height + 2 * linePadding};
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (!m_isInBar)
            drawCard(*this, event->region(), radius, edge);
        auto ink = m_isInBar ? QColor::fromRgb(inkInBar) : color(ColorName::label, *this);
        if (m_appearsDisabled)
            ink.setAlphaF(0.5F);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(sidePadding, topOfDigits());
        painter.fillPath(m_glyphs.crispOutline(m_text, digitHeight()), ink);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        m_grip = event->position().toPoint().x();
        m_isDragged = false;
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (m_isInBar || !event->buttons().testFlag(Qt::LeftButton))
            return;
        m_isDragged
            = m_isDragged || std::abs(event->position().toPoint().x() - m_grip) >= QApplication::startDragDistance();
        if (m_isDragged)
            m_onDrag(event->globalPosition().toPoint().x() - m_grip);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (m_isDragged || !rect().contains(event->position().toPoint()))
            return;
        const bool control = event->modifiers().testFlag(Qt::ControlModifier);
        if (event->button() == Qt::LeftButton)
            click(ClickEvent::Kind::leftMouseUp, control);
        else if (event->button() == Qt::RightButton)
            click(ClickEvent::Kind::rightMouseUp, control);
        else if (event->button() == Qt::MiddleButton)
            click(ClickEvent::Kind::otherMouseUp, control);
    }

private:
    /// A button named after the time it shows. The name changes silently: a screen reader can ask for it, but is not
    /// told of every second.
    class Accessible final : public QAccessibleWidget {
    public:
        explicit Accessible(Face* face) : QAccessibleWidget(face, QAccessible::Button), m_face(*face) { }

        [[nodiscard]] QString text(QAccessible::Text kind) const override
        {
            return kind == QAccessible::Name ? m_face.text() : QAccessibleWidget::text(kind);
        }

        [[nodiscard]] QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }

        void doAction(const QString& name) override
        {
            if (name == pressAction())
                m_face.click(ClickEvent::Kind::leftMouseUp, false);
            else if (name == showMenuAction())
                m_face.click(ClickEvent::Kind::rightMouseUp, false);
        }

    private:
        Face& m_face;
    };

    static QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
    {
        auto* face = dynamic_cast<Face*>(object);
        return face ? new Accessible(face) : nullptr;
    }

    [[nodiscard]] int digitHeight() const { return static_cast<int>(std::lround(m_glyphs.digitHeight())); }

    /// In a bar the digits stand on the baseline of its texts.
    [[nodiscard]] int topOfDigits() const
    {
        if (!m_isInBar)
            return (height() - digitHeight()) / 2;
        const QFontMetricsF metrics(font());
        return static_cast<int>(std::lround((height() - metrics.height()) / 2 + metrics.ascent())) - digitHeight();
    }

    ClickHandler m_onClick;
    QString m_text;
    ClockGlyphs m_glyphs{font()};
    bool m_appearsDisabled = false;
    bool m_isInBar = false;
    DragHandler m_onDrag;
    int m_grip = 0; ///< Where it was pressed.
    bool m_isDragged = false;
};

StripWindow::StripWindow(ClickHandler onClick, const QDBusConnection& bus) :
    StripWindow(new Face(std::move(onClick)), bus)
{
}

StripWindow::StripWindow(Face* face, const QDBusConnection& bus) :
    FloatingWindow(
        std::unique_ptr<QWidget>(face), [] {}, Focus::leftAlone),
    m_face(face),
    m_bar(bus),
    m_distanceFromRight(roomForButtons)
{
    shape().setCorners(radius, edge);
    face->setDragHandler([this](int x) { dragTo(x); });
    connect(&m_bar, &GnomeBar::changed, this, &StripWindow::place);
    connect(&m_fullScreen, &FullScreenWatch::changed, this, [this] { setVisible(m_isWanted); });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &StripWindow::followScreen);
    followScreen();
}

void StripWindow::setText(const QString& text)
{
    const bool resizes = text.size() != m_face->text().size();
    m_face->setText(text);
    if (resizes)
        place();
}

void StripWindow::setTextFont(const QFont& font)
{
    m_font = font;
    place();
}

void StripWindow::setAppearsDisabled(bool disabled)
{
    m_face->setAppearsDisabled(disabled);
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
    m_face->setStyle(true, GnomeBar::font());
    const auto inBar = m_bar.placeFor(m_face->sizeHint().width());
    if (!inBar)
        m_face->setStyle(false, m_font);
    // Nothing else can stand in a bar of the shell.
    windowHandle()->setFlag(Qt::BypassWindowManagerHint, inBar.has_value());

    const auto usable = screen->availableGeometry();
    const auto size = m_face->sizeHint();
    const int left = usable.right() + 1 - m_distanceFromRight - size.width();
    const auto place = inBar.value_or(
        QRect(QPoint(std::max(left, usable.left() + distanceFromEdge), usable.top() + distanceFromEdge), size));
    setFixedSize(place.size());
    move(place.topLeft());
}

void StripWindow::dragTo(int x)
{
    const auto usable = screen()->availableGeometry();
    const int rightmost = usable.right() + 1 - distanceFromEdge - width();
    m_distanceFromRight = usable.right() + 1 - width()
        - std::clamp(x, std::min(usable.left() + distanceFromEdge, rightmost), rightmost);
    place();
}

void StripWindow::closeEvent(QCloseEvent* /*event*/)
{
    // The time has no other place. Not refused, since that would refuse the end of the session, too.
    QMetaObject::invokeMethod(
        this, [this] { show(); }, Qt::QueuedConnection);
}

void StripWindow::setVisible(bool visible)
{
    m_isWanted = visible;
    FloatingWindow::setVisible(visible && !m_fullScreen.isFilled());
}

} // namespace velto
