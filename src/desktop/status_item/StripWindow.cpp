// SPDX-License-Identifier: MIT
#include "desktop/status_item/StripWindow.h"

#include "style/ClockGlyphs.h"
#include "style/Colors.h"
#include "style/Drawing.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr int distanceFromEdge = 6;
constexpr int sidePadding = 12;
constexpr int linePadding = 6;
constexpr double radius = 8;
constexpr auto edge = ColorName::controlOutline;

} // namespace

/// What is seen of the strip, and clicked.
class StripWindow::Face final : public QWidget {
public:
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

    void setTextFont(const QFont& font)
    {
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
        const auto width = static_cast<int>(std::ceil(m_glyphs.width(m_text)));
        const auto height = static_cast<int>(std::ceil(QFontMetricsF(font()).height()));
        return {width + 2 * sidePadding, height + 2 * linePadding};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        drawCard(*this, radius, edge);
        auto ink = color(ColorName::label, *this);
        if (m_appearsDisabled)
            ink.setAlphaF(0.5F);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(sidePadding, height() / 2.0);
        painter.fillPath(m_glyphs.outline(m_text), ink);
    }

    void mousePressEvent(QMouseEvent* event) override { event->accept(); }

    void mouseReleaseEvent(QMouseEvent* event) override
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

private:
    /// A button named like the time it shows. The name changes silently: a reader asks for it, and is
    /// not told of every second.
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

    ClickHandler m_onClick;
    QString m_text;
    ClockGlyphs m_glyphs{font()};
    bool m_appearsDisabled = false;
};

StripWindow::StripWindow(ClickHandler onClick) : StripWindow(new Face(std::move(onClick))) { }

StripWindow::StripWindow(Face* face) :
    FloatingWindow(
        std::unique_ptr<QWidget>(face), [] {}, Focus::leftAlone),
    m_face(face)
{
    shape().setCorners(radius, edge);
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
    m_face->setTextFont(font);
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
    const auto usable = screen->availableGeometry();
    const auto size = m_face->sizeHint();
    setFixedSize(size);
    move(usable.right() + 1 - distanceFromEdge - size.width(), usable.top() + distanceFromEdge);
}

} // namespace velto
