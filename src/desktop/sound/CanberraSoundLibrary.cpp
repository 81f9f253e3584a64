// SPDX-License-Identifier: MIT
#include "desktop/sound/CanberraSoundLibrary.h"

#include "desktop/sound/AudioLog.h"

#include <canberra.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace velto {

namespace {

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

/// Hands sounds to the server, one after the other, on the thread that calls `run()`.
class CanberraSoundLibrary::Player {
public:
    void play(std::filesystem::path file)
    {
        const std::lock_guard lock(m_mutex);
        if (std::ranges::find(m_waiting, file) == m_waiting.end())
            m_waiting.push_back(std::move(file));
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
        while (const auto file = next()) {
            // Only trying shows that a server has gone, so the first failure is not final.
            for (int attempt = 0; attempt < 2; ++attempt) {
                if (!context)
                    context = openContext();
                if (!context)
                    break;
                const int result = start(context.get(), *file);
                if (result == CA_SUCCESS)
                    break;
                qCDebug(audioLog) << "sound" << file->c_str() << "not started:" << ca_strerror(result);
                context.reset();
            }
        }
    }

private:
    /// Waits for something to play. Absent when stopped.
    std::optional<std::filesystem::path> next()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_stopped || !m_waiting.empty(); });
        if (m_stopped)
            return std::nullopt;
        auto file = std::move(m_waiting.front());
        m_waiting.pop_front();
        return file;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::filesystem::path> m_waiting;
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
