// SPDX-License-Identifier: MIT
#include "desktop/storage/PlistKeyValueStore.h"

#include <QDir>
#include <QLoggingCategory>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace velto {

namespace {

Q_LOGGING_CATEGORY(log, "velto.store", QtFatalMsg)

class File {
public:
    explicit File(int descriptor) : m_descriptor(descriptor) { }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { close(); }

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    /// False when something written before did not reach the medium.
    bool close()
    {
        const int descriptor = std::exchange(m_descriptor, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

    [[nodiscard]] bool write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            const ssize_t count = ::write(m_descriptor, bytes.data(), bytes.size());
            if (count < 0 && errno != EINTR)
                return false;
            bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
        }
        return true;
    }

    [[nodiscard]] bool sync() const { return ::fsync(m_descriptor) == 0; }

private:
    int m_descriptor;
};

fs::path linkTarget(fs::path path)
{
    std::error_code error;
    for (int hops = 0; hops < 40 && fs::is_symlink(path, error); ++hops)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

void syncFolder(const fs::path& folder)
{
    if (const File file{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)}; file.isOpen())
        static_cast<void>(file.sync());
}

bool makeFolder(const fs::path& folder)
{
    std::error_code error;
    if (fs::is_directory(folder, error))
        return true;
    if (!folder.has_relative_path() || !makeFolder(folder.parent_path()))
        return false;
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return false;
    syncFolder(folder.parent_path());
    return true;
}

bool moveAside(const fs::path& path)
{
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    std::array<char, 32> time{};
    std::strftime(time.data(), time.size(), "%Y%m%dT%H%M%SZ", ::gmtime_r(&now, &utc));
    const std::string base = path.string() + ".corrupt-" + time.data();

    std::string aside = base;
    for (int number = 2;; ++number) {
        // Holds the name, so that the rename can't fall on something that is already there.
        if (File{::open(aside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR)}.isOpen())
            break;
        if (errno != EEXIST)
            return false;
        aside = base + '-' + std::to_string(number);
    }
    if (::rename(path.c_str(), aside.c_str()) == 0)
        return true;
    const bool isGone = errno == ENOENT;
    ::unlink(aside.c_str());
    return isGone;
}

bool replace(const fs::path& path, std::string_view content)
{
    std::string temporary = path.string() + ".XXXXXX";
    File file{::mkostemp(temporary.data(), O_CLOEXEC)};
    if (!file.isOpen())
        return false;
    const bool isWritten = file.write(content) && file.sync() && file.close();
    if (!isWritten || ::rename(temporary.c_str(), path.c_str()) != 0) {
        const int error = errno;
        ::unlink(temporary.c_str());
        errno = error;
        return false;
    }
    syncFolder(path.parent_path());
    return true;
}

} // namespace

PlistKeyValueStore::PlistKeyValueStore(std::filesystem::path path) : m_path(std::move(path))
{
    load();
}

std::filesystem::path PlistKeyValueStore::defaultPath()
{
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    fs::path folder = configured ? configured : "";
    if (!folder.is_absolute())
        folder = fs::path{QDir::homePath().toStdString()} / ".config";
    return folder / "velto" / "defaults.plist";
}

std::optional<StoredValue> PlistKeyValueStore::object(std::string_view key) const
{
    return m_values.value(key);
}

void PlistKeyValueStore::set(std::string_view key, StoredValue value)
{
    m_values.set(key, value);
    if (!save())
        qCWarning(log, "%s not written: %s", m_path.c_str(), std::strerror(errno));
}

void PlistKeyValueStore::load()
{
    // Not blocking, for what is no plain file.
    const File file{::open(m_path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
    if (!file.isOpen()) {
        m_holdsForeignFile = errno != ENOENT;
        return;
    }

    std::string content;
    std::array<char, 16384> buffer{};
    ssize_t count = 0;
    while (content.size() <= PropertyList::maximumSize
        && ((count = ::read(file.descriptor(), buffer.data(), buffer.size())) > 0 || (count < 0 && errno == EINTR)))
        content.append(buffer.data(), count < 0 ? 0 : static_cast<std::size_t>(count));

    auto values = count < 0 ? std::nullopt : PropertyList::parse(content);
    m_holdsForeignFile = !values;
    if (values)
        m_values = std::move(*values);
    else
        qCWarning(log, "%s is no property list", m_path.c_str());
}

bool PlistKeyValueStore::save()
{
    const fs::path target = linkTarget(m_path);
    if (!makeFolder(target.parent_path()))
        return false;
    if (m_holdsForeignFile && !moveAside(target))
        return false;
    m_holdsForeignFile = false;
    return replace(target, m_values.toXml());
}

} // namespace velto
