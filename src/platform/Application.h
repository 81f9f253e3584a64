// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace velto {

/// A click on the status item.
struct ClickEvent {
    enum class Kind { leftMouseUp, rightMouseUp, otherMouseUp };

    Kind kind = Kind::leftMouseUp;
    bool control = false; ///< The control key was held.
    bool operator==(const ClickEvent&) const = default;
};

/// The process as the desktop sees it.
class Application {
public:
    virtual ~Application() = default;

    /// Brings the program to the foreground, whatever is there.
    virtual void activate() = 0;
    /// Ends the event loop; the process then exits with status 0.
    virtual void terminate() = 0;
    /// The click being handled. Absent when there is none.
    [[nodiscard]] virtual std::optional<ClickEvent> currentEvent() const = 0;
};

} // namespace velto
