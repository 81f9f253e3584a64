// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

namespace velto {

/// Hands links to the desktop's default programs.
class QtWorkspace final : public Workspace {
public:
    void open(const std::string& url) override;
};

} // namespace velto
