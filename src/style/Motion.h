// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace velto {

/// The length of every animation, in milliseconds.
inline constexpr int motionDuration = 350;

/// Whether `widget` may animate now: somebody can see it and does not ask for less motion.
[[nodiscard]] bool mayAnimate(const QWidget& widget);

} // namespace velto
