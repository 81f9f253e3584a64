// SPDX-License-Identifier: MIT
#include "style/Colors.h"

#include <QWidget>

#include <array>

namespace velto {

namespace {

struct Entry {
    ColorName name;
    std::array<QRgb, 4> colors; ///< In the order of Theme.
};

constexpr std::array table{
    Entry{ColorName::label, {0xff1d1d1f, 0xfff4f4f6, 0xff000000, 0xffffffff}},
    Entry{ColorName::secondaryLabel, {0xff5b5b62, 0xffadadb5, 0xff2b2b2e, 0xffe4e4e8}},
    Entry{ColorName::tertiaryLabel, {0xff6b6b73, 0xff92929b, 0xff3c3c40, 0xffd0d0d6}},
    Entry{ColorName::windowBackground, {0xfff7f7f8, 0xff222226, 0xffffffff, 0xff000000}},
    Entry{ColorName::cardOutline, {0x0d000000, 0x24ffffff, 0xff000000, 0xffffffff}},
    Entry{ColorName::separator, {0xffdcdce1, 0xff3b3b41, 0xff000000, 0xffffffff}},
    Entry{ColorName::control, {0xffe5e5ea, 0xff3a3a40, 0xffffffff, 0xff000000}},
    Entry{ColorName::controlOutline, {0xff85858d, 0xff84848d, 0xff000000, 0xffffffff}},
    Entry{ColorName::field, {0xffffffff, 0xff19191c, 0xffffffff, 0xff000000}},
    Entry{ColorName::knob, {0xffffffff, 0xffffffff, 0xffffffff, 0xff000000}},
    Entry{ColorName::tintedLabel, {0xff0b0b0d, 0xff0b0b0d, 0xffffffff, 0xff000000}},
    Entry{ColorName::teal, {0xff0b8a8e, 0xff49d5da, 0xff05595c, 0xff85f1f4}},
    Entry{ColorName::green, {0xff35c75f, 0xff34d15c, 0xff0c5420, 0xff63f088}},
    Entry{ColorName::orange, {0xffffa733, 0xffff9f2e, 0xff853600, 0xffffb861}},
    Entry{ColorName::red, {0xffb3261e, 0xffff7f78, 0xff8a0f0a, 0xffffa29c}},
    Entry{ColorName::accent, {0xff0a6266, 0xff0c8387, 0xff064c4e, 0xff0c8387}},
};

static_assert(table.size() == static_cast<std::size_t>(ColorName::last) + 1);

} // namespace

QColor color(ColorName name, Theme theme)
{
    const auto& entry = table.at(static_cast<std::size_t>(name));
    Q_ASSERT(entry.name == name);
    return QColor::fromRgba(entry.colors.at(static_cast<std::size_t>(theme)));
}

QColor color(ColorName name, const QWidget& widget)
{
    return color(name, themeOf(widget.palette()));
}

Theme themeOf(const QPalette& palette)
{
    const auto window = palette.color(QPalette::Active, QPalette::Window);
    for (const auto theme : {Theme::lightHighContrast, Theme::darkHighContrast})
        if (window == color(ColorName::windowBackground, theme))
            return theme;
    return window.lightness() < 128 ? Theme::dark : Theme::light;
}

bool isHighContrast(const QPalette& palette)
{
    const auto theme = themeOf(palette);
    return theme == Theme::lightHighContrast || theme == Theme::darkHighContrast;
}

QPalette paletteFor(Theme theme)
{
    const auto of = [theme](ColorName name) { return color(name, theme); };
    const auto window = of(ColorName::windowBackground);

    QPalette palette;
    const auto set = [&palette, &window](QPalette::ColorRole role, const QColor& value) {
        palette.setColor(role, value);
        palette.setColor(QPalette::Disabled, role, mixed(value, window, 0.5));
    };
    set(QPalette::Window, window);
    set(QPalette::WindowText, of(ColorName::label));
    set(QPalette::Base, of(ColorName::field));
    set(QPalette::AlternateBase, of(ColorName::control));
    set(QPalette::Text, of(ColorName::label));
    set(QPalette::PlaceholderText, of(ColorName::tertiaryLabel));
    set(QPalette::Button, of(ColorName::control));
    set(QPalette::ButtonText, of(ColorName::label));
    set(QPalette::BrightText, of(ColorName::red));
    set(QPalette::ToolTipBase, of(ColorName::control));
    set(QPalette::ToolTipText, of(ColorName::label));
    set(QPalette::Highlight, of(ColorName::accent));
    set(QPalette::HighlightedText, Qt::white);
    set(QPalette::Link, of(ColorName::accent));
    set(QPalette::LinkVisited, of(ColorName::accent));
    set(QPalette::Light, mixed(of(ColorName::control), Qt::white, 0.2));
    set(QPalette::Midlight, mixed(of(ColorName::control), Qt::white, 0.1));
    set(QPalette::Mid, mixed(of(ColorName::control), Qt::black, 0.2));
    set(QPalette::Dark, mixed(of(ColorName::control), Qt::black, 0.4));
    set(QPalette::Shadow, Qt::black);
    // A disabled window is no other window: only what stands on it fades.
    palette.setColor(QPalette::Disabled, QPalette::Window, window);
    return palette;
}

QColor mixed(const QColor& a, const QColor& b, double amount)
{
    const auto channel = [amount](double from, double to) { return static_cast<float>(from + (to - from) * amount); };
    return QColor::fromRgbF(channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()), channel(a.blueF(), b.blueF()),
        channel(a.alphaF(), b.alphaF()));
}

} // namespace velto
