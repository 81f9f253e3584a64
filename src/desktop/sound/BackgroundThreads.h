// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace velto {

/// Runs work that may block on something outside the program, each piece on its own thread.
///
/// The work must own everything it touches, and must be told to end before this is destroyed. The destructor waits up
/// to half a second for it; a thread that still blocks is left behind.
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
