// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velto {

/// Hands things over to the desktop.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Opens `url` with the desktop's handler for it; a string that is not a URL does nothing.
    virtual void open(const std::string& url) = 0;
};

} // namespace velto
