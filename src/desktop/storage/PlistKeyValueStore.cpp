// SPDX-License-Identifier: MIT
#include "desktop/storage/PlistKeyValueStore.h"

#include "desktop/storage/PropertyListFile.h"

#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <system_error>
#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace velto {

using namespace std::chrono_literals;

namespace {

fs::path homeFolder()
{
    if (const char* home = std::getenv("HOME"); home && fs::path{home}.is_absolute())
        return home;
    const passwd* account = ::getpwuid(::getuid());
    return account ? account->pw_dir : "/";
}

} // namespace

class PlistKeyValueStore::Writer {
public:
    explicit Writer(const fs::path& path) : m_path(path), m_file(path) { }

    /// Before run().
    [[nodiscard]] PropertyList load() { return m_file.load(); }

    void add(std::string_view key, StoredValue value)
    {
        const std::lock_guard lock(m_mutex);
        m_unwritten.insert_or_assign(std::string{key}, std::move(value));
        m_isAsked = true;
        m_changed.notify_all();
    }

    /// Tries once more to write what could not be written. False when that takes longer than `limit`.
    bool finish(std::chrono::milliseconds limit)
    {
        const auto end = std::chrono::steady_clock::now() + limit;
        const auto isIdle = [this] { return !m_isAsked && !m_isBusy; };
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_until(lock, end, isIdle))
            return false;
        m_isAsked = !m_unwritten.empty();
        m_changed.notify_all();
        return m_changed.wait_until(lock, end, isIdle);
    }

    void end()
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_changed.notify_all();
    }

    void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_isAsked || m_isEnding; });
            if (m_isEnding)
                return;
            m_isAsked = false;
            m_isBusy = true;
            auto values = std::exchange(m_unwritten, {});
            lock.unlock();
            const bool isWritten = write(values);
            lock.lock();
            if (!isWritten)
                m_unwritten.merge(values); // What was assigned meanwhile is newer and stays.
            m_isBusy = false;
            m_changed.notify_all();
        }
    }

    void complain(const std::string& reason)
    {
        if (!m_hasComplained.exchange(true))
            std::fprintf(stderr, "velto: settings not saved: %s: %s\n", m_path.c_str(), reason.c_str());
    }

private:
    [[nodiscard]] bool write(const PropertyListFile::Values& values)
    {
        try {
            m_file.change(values);
            m_hasComplained = false;
            return true;
        } catch (const std::system_error& error) {
            complain(error.code().message());
            return false;
        }
    }

    const fs::path m_path;
    PropertyListFile m_file;
    std::atomic<bool> m_hasComplained = false;
    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable m_changed;
    PropertyListFile::Values m_unwritten;
    bool m_isAsked = false;
    bool m_isBusy = false;
    bool m_isEnding = false;
};

PlistKeyValueStore::PlistKeyValueStore(const fs::path& path) :
    m_writer(std::make_shared<Writer>(path)),
    m_values(m_writer->load())
{
}

PlistKeyValueStore::~PlistKeyValueStore()
{
    if (!m_thread.joinable())
        return;
    const bool isFinished = m_writer->finish(5s);
    m_writer->end();
    if (isFinished) {
        m_thread.join();
    } else {
        m_writer->complain("no answer for 5 s");
        m_thread.detach();
    }
}

fs::path PlistKeyValueStore::defaultPath()
{
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    fs::path folder = configured ? configured : "";
    if (!folder.is_absolute())
        folder = homeFolder() / ".config";
    return folder / "velto" / "defaults.plist";
}

std::optional<StoredValue> PlistKeyValueStore::object(std::string_view key) const
{
    return m_values.value(key);
}

void PlistKeyValueStore::set(std::string_view key, StoredValue value)
{
    m_values.set(key, value);
    m_writer->add(key, std::move(value));
    if (!m_thread.joinable())
        m_thread = std::thread([writer = m_writer] { writer->run(); });
}

bool PlistKeyValueStore::waitUntilWritten(std::chrono::milliseconds limit)
{
    return !m_thread.joinable() || m_writer->finish(limit);
}

} // namespace velto
