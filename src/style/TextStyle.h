// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include <functional>

class QWidget;

namespace velto {

/// The text sizes of the program, named by what they are for.
///
///     followFont(*this, [] { return textFont(TextStyle::headline); }); // in a view's constructor
enum class TextStyle { title, title2, headline, body, subheadline, footnote, caption };

/// How much larger than designed the user wants text: the desktop's font against the usual 10 pt,
/// kept between 1.0 and 1.25 so that fixed frames still hold their text.
[[nodiscard]] double textScale(const QFont& desktopFont);

/// In pixels at `scale`; body is 13 at 1.0.
[[nodiscard]] double pixelSize(TextStyle style, double scale);

/// The desktop's UI font at the size and weight of `style`.
[[nodiscard]] QFont textFont(TextStyle style);

/// Semibold digits in a rounded family where one is installed, one with tabular figures before others; else in the UI
/// font.
/// `pixels` is taken as it is: the clock does not grow with the text.
[[nodiscard]] QFont clockFont(double pixels);

/// Runs `answer` whenever the desktop's font changes, as long as `widget` lives.
void onFontChange(QWidget& widget, std::function<void()> answer);

/// Gives `widget` the font that `font` makes of the desktop's, now and whenever that changes.
void followFont(QWidget& widget, QFont (*font)());

} // namespace velto
