// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RunLoop.h"

#include <functional>

namespace velto {

/// A press of a mouse button or a finger outside the program's windows.
struct Press {
    enum class Target { bar, menu, elsewhere };

    Target target = Target::elsewhere; ///< What kind of window it lands on.
    bool opensMenus = false;           ///< Right button, or left with the control key.
};

/// Tells which presses outside the program hide the panel, and which clicks on the status item belong
/// to a press that has just done so.
///
/// Presses and clicks arrive by different routes and in any order. They are paired by press: the press that
/// hid the panel is remembered until the next one, or until 500 ms after its release.
/// Main thread only.
class ClickGesture {
public:
    /// `runLoop` must outlive this.
    explicit ClickGesture(RunLoop& runLoop);

    // For the status item.

    /// True when the click being handled belongs to the press that has just hidden the panel, which
    /// then should stay hidden. True once for each such press.
    [[nodiscard]] bool claimClick();
    /// The item's menu is open, whoever draws it: presses belong to the menu.
    void menuOpened();
    void menuClosed();
    /// A host asks for the menu. It is about to show it if that answers a press on its bar.
    void menuRequested();

    // For the event monitor.

    /// Runs `hide` now, later or never. It is empty when nobody is watching.
    void press(const Press& press, std::function<void()> hide);
    /// The button or finger of the latest press has gone up.
    void release();
    /// The last menu on the screen has gone, whosever it was: not every host tells when it closes ours.
    void menusGone();
    /// Drops a hide that is still waiting.
    void stopHiding();
    /// `catchUp` delivers every press and release that has happened but was not delivered yet.
    void setCatchUp(std::function<void()> catchUp);
    /// Whether the next press or release is still of interest, even with nobody watching.
    [[nodiscard]] bool isUnderway() const;

private:
    RunLoop& m_runLoop;
    std::function<void()> m_catchUp;
    std::function<void()> m_waitingHide;
    bool m_hasHidden = false; ///< The latest press did, and no click has claimed it.
    bool m_menuIsOpen = false;
    Subscription m_timeout;
};

} // namespace velto
