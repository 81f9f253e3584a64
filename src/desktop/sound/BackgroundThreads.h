// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace velto {

/// Runs work that may hang on something outside of the program, each on a thread of its own.
///
/// The work must own all it touches, and be told to end before this goes. Going away waits up to
/// half a second for it; a thread that still hangs is left behind.
class BackgroundThreads {
public:
    BackgroundThreads();
    BackgroundThreads(const BackgroundThreads&) = delete;
    BackgroundThreads& operator=(const BackgroundThreads&) = delete;
    ~BackgroundThreads();

    void run(std::function<void()> work);

private:
    struct Running;
    std::shared_ptr<Running> m_running;
};

} // namespace velto
