// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

#include <vector>

namespace velto {

/// Remembers what it was asked to open.
class FakeWorkspace final : public Workspace {
public:
    void open(const std::string& url) override { opened.push_back(url); }

    std::vector<std::string> opened;
};

} // namespace velto
