// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Geometry.h"
#include "platform/Menu.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace velto {

/// The visible part of a status item: a short text that can be clicked.
class StatusItemButton {
public:
    virtual ~StatusItemButton() = default;

    /// The system's font, semibold; a host that draws the text itself uses its own.
    virtual void setFont(double points) = 0;
    virtual void setToolTip(const std::string& text) = 0;
    virtual void setTitle(const std::string& title) = 0;
    virtual void setAppearsDisabled(bool disabled) = 0;

    /// Runs on the release of the left and of the right mouse button; the click is then the
    /// application's current event.
    virtual void setAction(std::function<void()> action) = 0;

    /// Where it is on the screen. Absent while that is unknown.
    [[nodiscard]] virtual std::optional<Rect> frame() const = 0;
};

/// The program's place in the desktop's panel bar.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Null when the item has no visible part. Owned by the item, the same for its whole life.
    [[nodiscard]] virtual StatusItemButton* button() = 0;

    /// The menu that a panel host shows by itself on a right click.
    virtual void setMenu(std::shared_ptr<Menu> menu) = 0;

    /// Says that values in the menu may have changed; an open menu follows within a turn.
    virtual void menuDidChange() = 0;

    /// Opens the menu under the item, after calling its `willOpen`, and returns at once.
    virtual void popUpMenu() = 0;
};

} // namespace velto
