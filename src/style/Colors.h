// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace velto {

/// Every colour that a view may use, by what it is for.
///
///     painter.setPen(color(ColorName::secondaryLabel, *this)); // in paintEvent(), so that it follows the theme
enum class ColorName {
    label,            ///< Text.
    secondaryLabel,   ///< Text that stands back.
    tertiaryLabel,    ///< Text that stands further back, still readable when small.
    windowBackground, ///< Cards and windows.
    cardOutline,      ///< The thin line round a card; translucent.
    separator,        ///< Lines between sections.
    control,          ///< The face of a bordered button or picker.
    controlOutline,   ///< The edge of fields, of empty tracks and of switches that are off.
    field,            ///< Behind text that can be edited.
    knob,             ///< The part of a switch or slider that moves.
    tintedLabel,      ///< Text on a face of green or orange.
    teal,             ///< The ring of a focus phase and its title, the mark of the focus; the hue of the accent.
    green,
    orange,
    red,
    accent, ///< Links and what is chosen; white text can stand on it.
    last = accent
};

enum class Theme { light, dark, lightHighContrast, darkHighContrast };

[[nodiscard]] QColor color(ColorName name, Theme theme);

/// The colour in the theme that `widget` is shown in. Read it when painting: it changes live.
[[nodiscard]] QColor color(ColorName name, const QWidget& widget);

/// The theme that a palette belongs to; one that is not ours is light or dark by its window colour.
[[nodiscard]] Theme themeOf(const QPalette& palette);

[[nodiscard]] bool isHighContrast(const QPalette& palette);

/// The palette for whatever Qt draws by itself. It looks the same in windows that are not active.
[[nodiscard]] QPalette paletteFor(Theme theme);

/// `amount` of `b` in `a`, from 0 to 1.
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, double amount);

} // namespace velto
