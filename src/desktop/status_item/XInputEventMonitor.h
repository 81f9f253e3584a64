// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"
#include "platform/EventMonitor.h"

#include <QObject>

#include <memory>
#include <set>

class QSocketNotifier;
struct _XDisplay; // NOLINT(bugprone-reserved-identifier): not ours

namespace velto {

class ClickGesture;

/// Sees every press on the X server, whoever holds a grab, through raw events of XInput 2.2, and every menu that
/// leaves the screen. Without such a server only `dismiss` tells of presses.
///
/// Has its own connection, opened by the first monitor. The server is asked for events only while
/// somebody watches or a gesture is under way.
class XInputEventMonitor final : public QObject, public EventMonitor {
    Q_OBJECT

public:
    /// `gesture` decides which presses are handed on, and when; it must outlive this.
    explicit XInputEventMonitor(ClickGesture& gesture);
    ~XInputEventMonitor() override;

    [[nodiscard]] std::optional<Subscription> addOutsidePressMonitor(std::function<void()> handler) override;

    /// As if there had been a press elsewhere: for what closes the panel where presses can't be seen.
    void dismiss();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct CloseDisplay {
        void operator()(_XDisplay* display) const;
    };

    [[nodiscard]] bool connect();
    void followInterest();
    void catchUp();
    void readEvents();
    void readRawEvent(int type, int flags, int detail);
    void press(bool isSecondary);
    [[nodiscard]] std::function<void()> watchers();

    ClickGesture& m_gesture;
    Broadcast<> m_presses;
    std::unique_ptr<_XDisplay, CloseDisplay> m_display;
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_extension = 0;
    bool m_isListening = false;
    std::set<unsigned long> m_menus; ///< On the screen; they appeared while listening.
};

} // namespace velto
