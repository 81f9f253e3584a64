// SPDX-License-Identifier: MIT
#include "desktop/storage/PropertyListFile.h"

#include <array>
#include <cerrno>
#include <ctime>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace velto {

namespace {

constexpr std::string_view temporaryMark = ".tmp-";

[[noreturn]] void fail(int error)
{
    throw std::system_error(error, std::generic_category());
}

/// Repeats a system call as long as signals interrupt it; -1 when it fails.
template <class Call>
auto uninterrupted(const Call& call)
{
    for (;;)
        if (const auto result = call(); result >= 0 || errno != EINTR)
            return result;
}

template <class Call>
auto checked(const Call& call)
{
    const auto result = uninterrupted(call);
    if (result < 0)
        fail(errno);
    return result;
}

class File {
public:
    explicit File(int descriptor) : m_descriptor(descriptor) { }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }

    void write(std::string_view bytes) const
    {
        while (!bytes.empty())
            bytes.remove_prefix(
                static_cast<std::size_t>(checked([&] { return ::write(m_descriptor, bytes.data(), bytes.size()); })));
    }

    /// Fails when something written before did not reach the medium.
    void close()
    {
        if (::close(std::exchange(m_descriptor, -1)) != 0 && errno != EINTR)
            fail(errno);
    }

private:
    int m_descriptor;
};

/// Not open when the folder can't be.
File openFolder(const fs::path& path)
{
    return File{uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })};
}

void sync(const File& file)
{
    // Some file systems can't sync a folder.
    if (uninterrupted([&] { return ::fsync(file.descriptor()); }) != 0 && errno != EINVAL)
        fail(errno);
}

fs::path linkTarget(fs::path path)
{
    for (int hops = 0; hops < 40; ++hops) {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return path;
        if (error)
            fail(error.value());
        path = path.parent_path() / target;
    }
    fail(ELOOP);
}

void makeFolder(const fs::path& folder)
{
    if (fs::is_directory(folder) || !folder.has_relative_path())
        return;
    makeFolder(folder.parent_path());
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        fail(errno);
    if (const File parent = openFolder(folder.parent_path()); parent.isOpen())
        sync(parent);
}

/// Absent when there is no file. Stops once it is too long for a property list.
std::optional<std::string> contentOf(const fs::path& path)
{
    // Non-blocking, in case it is not a regular file.
    const File file{uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); })};
    if (!file.isOpen()) {
        if (errno == ENOENT)
            return std::nullopt;
        fail(errno);
    }
    std::string content;
    std::array<char, 16384> buffer{};
    while (content.size() <= PropertyList::maximumSize) {
        const auto count = checked([&] { return ::read(file.descriptor(), buffer.data(), buffer.size()); });
        if (count == 0)
            break;
        content.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return content;
}

void moveAside(const fs::path& path)
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
            fail(errno);
        aside = base + '-' + std::to_string(number);
    }
    if (::rename(path.c_str(), aside.c_str()) != 0) {
        const int error = errno;
        ::unlink(aside.c_str());
        if (error != ENOENT)
            fail(error);
    }
}

void replace(const fs::path& path, std::string_view content)
{
    std::string temporary = path.string().append(temporaryMark).append("XXXXXX");
    File file{checked([&] { return ::mkostemp(temporary.data(), O_CLOEXEC); })};
    try {
        file.write(content);
        sync(file);
        file.close();
        checked([&] { return ::rename(temporary.c_str(), path.c_str()); });
    } catch (const std::system_error&) {
        ::unlink(temporary.c_str());
        throw;
    }
}

void removeTemporaries(const fs::path& path)
{
    // Whoever is writing now has the lock.
    const File folder = openFolder(path.parent_path());
    if (!folder.isOpen() || ::flock(folder.descriptor(), LOCK_EX | LOCK_NB) != 0)
        return;
    const std::string prefix = path.filename().string().append(temporaryMark);
    std::error_code error;
    for (fs::directory_iterator entry{path.parent_path(), error}, end; !error && entry != end; entry.increment(error))
        if (entry->path().filename().string().starts_with(prefix))
            ::unlink(entry->path().c_str());
}

} // namespace

PropertyListFile::PropertyListFile(fs::path path) : m_path(std::move(path)) { }

PropertyList PropertyListFile::load()
{
    try {
        const fs::path target = linkTarget(m_path);
        removeTemporaries(target);
        if (const auto content = contentOf(target))
            if (auto list = PropertyList::parse(*content))
                m_last = std::move(*list);
    } catch (const std::system_error&) {
        // The first change tries again.
    }
    return m_last;
}

void PropertyListFile::change(const Values& values)
{
    const fs::path target = linkTarget(m_path);
    makeFolder(target.parent_path());
    const File folder = openFolder(target.parent_path());
    if (!folder.isOpen())
        fail(errno);
    // Where folders can't be locked, whoever writes last wins.
    uninterrupted([&] { return ::flock(folder.descriptor(), LOCK_EX); });

    PropertyList list = m_last;
    if (const auto content = contentOf(target)) {
        if (auto found = PropertyList::parse(*content))
            list = std::move(*found);
        else
            moveAside(target);
    }
    for (const auto& [key, value] : values)
        list.set(key, value);

    const std::string xml = list.toXml();
    if (!PropertyList::parse(xml))
        fail(EFBIG);
    replace(target, xml);
    m_last = std::move(list);
    sync(folder);
}

} // namespace velto
