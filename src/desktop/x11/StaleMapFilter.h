// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>

namespace velto::x11 {

/// Hides a MapNotify from Qt that arrives after its window was hidden again: Qt would believe the window mapped, and
/// warn when it is shown next.
///
/// No effect where there is no X11. Main thread only.
class StaleMapFilter final : public QAbstractNativeEventFilter {
public:
    StaleMapFilter();

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
};

} // namespace velto::x11
