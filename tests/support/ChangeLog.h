// SPDX-License-Identifier: MIT
#pragma once

#include "core/PomodoroPhase.h"
#include "observation/Published.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velto {

/// What happened, in order: every assignment of the observed values as "name=value", and whatever a test adds.
class ChangeLog {
public:
    template <class T>
    void observe(const std::string& name, const PublishedValue<T>& value)
    {
        m_subscriptions.push_back(value.laterChanges([this, name](const T& now) { add(name + '=' + text(now)); }));
    }

    void keep(Subscription subscription) { m_subscriptions.push_back(std::move(subscription)); }
    void add(std::string line) { m_lines.push_back(std::move(line)); }

    /// The lines since the last call.
    std::vector<std::string> take() { return std::exchange(m_lines, {}); }

    static std::string text(bool value) { return value ? "true" : "false"; }
    static std::string text(std::int64_t value) { return std::to_string(value); }
    static std::string text(PomodoroPhase phase) { return phase == PomodoroPhase::focus ? "focus" : "break"; }
    static std::string text(const std::optional<std::string>& value) { return value.value_or("absent"); }

private:
    std::vector<std::string> m_lines;
    std::vector<Subscription> m_subscriptions;
};

} // namespace velto
