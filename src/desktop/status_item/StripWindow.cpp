// SPDX-License-Identifier: MIT
#include "desktop/status_item/StripWindow.h"

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
constexpr int sidePadding = 12;
constexpr int linePadding = 6;
constexpr double radius = 8;

} // namespace

/// What is seen of the strip, and clicked.
class StripWindow::Face final : public QWidget {
public:
    explicit Face(ClickHandler onClick) : m_onClick(std::move(onClick)), m_font(font())
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
        m_font = font;
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
        double width = 0;
        for (const auto character : m_text)
            width += cell(character);
        const double height = std::ceil(QFontMetricsF(m_font).height());
        return {static_cast<int>(std::ceil(width)) + 2 * sidePadding, static_cast<int>(height) + 2 * linePadding};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(continuousRoundedRect(rect(), radius), color(ColorName::controlOutline, *this));
        painter.fillPath(continuousRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius - 1),
            color(ColorName::windowBackground, *this));

        auto ink = color(ColorName::label, *this);
        if (m_appearsDisabled)
            ink.setAlphaF(0.5F);
        painter.setPen(ink);
        painter.setFont(m_font);
        double x = sidePadding;
        for (const auto character : m_text) {
            painter.drawText(QRectF(x, 0, cell(character), height()), Qt::AlignCenter, QString(character));
            x += cell(character);
        }
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

    /// Digits are all given the same room, so that nothing moves while they change.
    [[nodiscard]] double cell(QChar character) const
    {
        const QFontMetricsF metrics(m_font);
        if (!character.isDigit())
            return metrics.horizontalAdvance(character);
        double width = 0;
        for (char digit = '0'; digit <= '9'; ++digit)
            width = std::max(width, metrics.horizontalAdvance(QLatin1Char(digit)));
        return std::ceil(width);
    }

    ClickHandler m_onClick;
    QString m_text;
    QFont m_font;
    bool m_appearsDisabled = false;
};

StripWindow::StripWindow(ClickHandler onClick) : StripWindow(new Face(std::move(onClick))) { }

StripWindow::StripWindow(Face* face) :
    FloatingWindow(
        std::unique_ptr<QWidget>(face), [] {}, Focus::leftAlone),
    m_face(face)
{
    setCorners(radius, ColorName::controlOutline);
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
