// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>

namespace velto::x11 {

/// Keeps from Qt the word of a window's mapping that comes after the window was hidden again. Qt would take it for
/// mapped, and complain when it is shown next.
///
/// No effect where there is no X11. Main thread only.
class StaleMapFilter final : public QAbstractNativeEventFilter {
public:
    StaleMapFilter();

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
};

} // namespace velto::x11
