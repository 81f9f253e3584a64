// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>
#include <utility>
#include <vector>

namespace velto {

/// The environment variables with which Qt's application object is to be made. What the user has set stays.
///
/// Programs that velto starts later do not inherit them: they go with this object.
class StartEnvironment {
public:
    StartEnvironment();
    ~StartEnvironment();
    StartEnvironment(const StartEnvironment&) = delete;
    StartEnvironment& operator=(const StartEnvironment&) = delete;

private:
    void provide(const char* name, const char* value);

    std::vector<std::pair<const char*, std::optional<QByteArray>>> m_before;
};

} // namespace velto
