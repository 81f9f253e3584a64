// SPDX-License-Identifier: MIT
#include "desktop/sound/BackgroundThreads.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

struct BackgroundThreads::Running {
    std::mutex mutex;
    std::condition_variable changed;
    int count = 0;
};

BackgroundThreads::BackgroundThreads() : m_running(std::make_shared<Running>()) { }

BackgroundThreads::~BackgroundThreads()
{
    std::unique_lock lock(m_running->mutex);
    m_running->changed.wait_for(lock, 500ms, [this] { return m_running->count == 0; });
}

void BackgroundThreads::run(std::function<void()> work)
{
    {
        const std::lock_guard lock(m_running->mutex);
        ++m_running->count;
    }
    std::thread([running = m_running, work = std::move(work)]() mutable {
        work();
        work = nullptr;
        const std::lock_guard lock(running->mutex);
        --running->count;
        running->changed.notify_all();
    }).detach();
}

} // namespace velto
