// SPDX-License-Identifier: MIT
#include "desktop/sound/CanberraSoundLibrary.h"

#include "desktop/sound/AudioLog.h"

#include <canberra.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace velto {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

/// Every sound starts this long after it is asked for, so that a row of them is even although the
/// first has to find the server first.
constexpr auto leadTime = 80ms;

struct ContextDeleter {
    void operator()(ca_context* context) const { ca_context_destroy(context); }
};
using Context = std::unique_ptr<ca_context, ContextDeleter>;

/// A connection to the sound server. Absent when there is none.
Context openContext()
{
    ca_context* created = nullptr;
    if (ca_context_create(&created) != CA_SUCCESS)
        return nullptr;
    Context context(created);
    // Only through the sound server: taking the sound card itself while the server is away would
    // keep it from coming back.
    ca_context_set_driver(created, "pulse");
    ca_context_change_props(created, CA_PROP_APPLICATION_NAME, "velto", CA_PROP_APPLICATION_ID, "org.velto.Velto",
        CA_PROP_APPLICATION_ICON_NAME, "org.velto.Velto", nullptr);
    const int result = ca_context_open(created);
    if (result == CA_SUCCESS)
        return context;
    qCDebug(audioLog) << "no sound server:" << ca_strerror(result);
    return nullptr;
}

int start(ca_context* context, const std::filesystem::path& file)
{
    return ca_context_play(context, 0, CA_PROP_MEDIA_FILENAME, file.c_str(), CA_PROP_MEDIA_NAME, file.stem().c_str(),
        CA_PROP_MEDIA_ROLE, "event", CA_PROP_CANBERRA_CACHE_CONTROL, "never", nullptr);
}

} // namespace

/// Hands sounds to the server, one after the other, on whatever thread `run()` is called.
class CanberraSoundLibrary::Player {
public:
    void play(std::filesystem::path file)
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_requests, isStale);
        m_requests.push_back({std::move(file), Clock::now()});
        m_changed.notify_all();
    }

    void stop()
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_changed.notify_all();
    }

    void run()
    {
        Context context;
        while (const auto request = next()) {
            // A server that went away is noticed only by trying, so the first failure is no verdict.
            for (int attempt = 0; attempt < 2; ++attempt) {
                if (!context)
                    context = openContext();
                if (!context)
                    break;
                std::this_thread::sleep_until(request->time + leadTime);
                const int result = start(context.get(), request->file);
                if (result == CA_SUCCESS)
                    break;
                qCDebug(audioLog) << "sound" << request->file.c_str() << "not started:" << ca_strerror(result);
                context.reset();
            }
        }
    }

private:
    struct Request {
        std::filesystem::path file;
        Clock::time_point time;
    };

    static bool isStale(const Request& request) { return Clock::now() - request.time > 500ms; }

    /// Waits for something to play. Absent when stopped.
    std::optional<Request> next()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_stopped || !m_requests.empty(); });
            if (m_stopped)
                return std::nullopt;
            auto request = std::move(m_requests.front());
            m_requests.pop_front();
            if (!isStale(request))
                return request;
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Request> m_requests;
    bool m_stopped = false;
};

namespace {

class CanberraSound final : public Sound {
public:
    explicit CanberraSound(std::function<void()> start) : m_start(std::move(start)) { }
    void play() override { m_start(); }

private:
    std::function<void()> m_start;
};

} // namespace

std::filesystem::path CanberraSoundLibrary::folderOf(const std::filesystem::path& executableFolder)
{
    return executableFolder / VELTO_SOUNDS_FROM_EXECUTABLE;
}

CanberraSoundLibrary::CanberraSoundLibrary(std::filesystem::path folder) : m_folder(std::move(folder))
{
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder, error)) {
        if (entry.path().extension() == ".wav")
            m_names.insert(entry.path().stem());
    }
}

CanberraSoundLibrary::~CanberraSoundLibrary()
{
    if (m_player)
        m_player->stop();
}

std::unique_ptr<Sound> CanberraSoundLibrary::soundNamed(std::string_view name)
{
    if (!m_names.contains(name))
        return nullptr;
    if (!m_player) {
        m_player = std::make_shared<Player>();
        m_threads.run([player = m_player] { player->run(); });
    }
    auto file = m_folder / (std::string(name) + ".wav");
    return std::make_unique<CanberraSound>([player = m_player, file = std::move(file)] { player->play(file); });
}

} // namespace velto
