// SPDX-License-Identifier: MIT
#include "style/TextStyle.h"

#include <QEvent>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QStringList>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr double pixelsPerPoint = 96.0 / 72.0;
constexpr double usualPixels = 10 * pixelsPerPoint;

/// Whether all digits are equally wide, which keeps a narrow one from standing in a hole.
bool hasTabularFigures(const QString& family)
{
    QFont font(family);
    font.setPixelSize(100);
    const QFontMetricsF metrics(font);
    return std::ranges::all_of(QStringLiteral("123456789"),
        [&](QChar digit) { return metrics.horizontalAdvance(digit) == metrics.horizontalAdvance(u'0'); });
}

QString roundedFamily()
{
    QStringList rounded{"Quicksand", "Nunito", "M PLUS Rounded 1c", "Varela Round", "Comfortaa"};
    const auto installed = QFontDatabase::families();
    rounded.removeIf([&](const QString& family) { return !installed.contains(family); });
    const auto tabular = std::ranges::find_if(rounded, hasTabularFigures);
    return tabular == rounded.end() ? rounded.value(0) : *tabular;
}

QFont::Weight weightOf(TextStyle style)
{
    // Short of bold, which Qt 6.8 draws twice as bold in a variable font.
    constexpr auto bold = static_cast<QFont::Weight>(QFont::Bold - 1);
    switch (style) {
    case TextStyle::title:
    case TextStyle::title2:
        return bold;
    case TextStyle::headline:
        return QFont::DemiBold;
    default:
        return QFont::Normal;
    }
}

class FontFollower final : public QObject {
public:
    FontFollower(QWidget& widget, std::function<void()> answer) : QObject(&widget), m_answer(std::move(answer))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*widget*/, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationFontChange)
            m_answer();
        return false;
    }

private:
    std::function<void()> m_answer;
};

} // namespace

double textScale(const QFont& desktopFont)
{
    const double pixels
        = desktopFont.pixelSize() > 0 ? desktopFont.pixelSize() : desktopFont.pointSizeF() * pixelsPerPoint;
    return std::clamp(pixels / usualPixels, 1.0, 1.25);
}

double pixelSize(TextStyle style, double scale)
{
    switch (style) {
    case TextStyle::title:
        return 22 * scale;
    case TextStyle::title2:
        return 17 * scale;
    case TextStyle::headline:
    case TextStyle::body:
        return 13 * scale;
    case TextStyle::subheadline:
        return 11 * scale;
    case TextStyle::footnote:
    case TextStyle::caption:
        break;
    }
    return 10 * scale;
}

QFont textFont(TextStyle style)
{
    auto font = QGuiApplication::font();
    font.setPixelSize(static_cast<int>(std::lround(pixelSize(style, textScale(font)))));
    font.setWeight(weightOf(style));
    return font;
}

QFont clockFont(double pixels)
{
    static const QString rounded = roundedFamily();
    auto font = QGuiApplication::font();
    if (!rounded.isEmpty())
        font.setFamilies({rounded, font.family()});
    font.setPixelSize(static_cast<int>(std::lround(pixels)));
    font.setWeight(QFont::DemiBold);
    return font;
}

void onFontChange(QWidget& widget, std::function<void()> answer)
{
    new FontFollower(widget, std::move(answer));
}

void followFont(QWidget& widget, QFont (*font)())
{
    widget.setFont(font());
    onFontChange(widget, [&widget, font] { widget.setFont(font()); });
}

} // namespace velto
