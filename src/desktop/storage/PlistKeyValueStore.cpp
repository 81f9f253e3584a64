// SPDX-License-Identifier: MIT
#include "desktop/storage/PlistKeyValueStore.h"

#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace velto {

namespace {

fs::path homeFolder()
{
    if (const char* home = std::getenv("HOME"); home && fs::path{home}.is_absolute())
        return home;
    const passwd* account = ::getpwuid(::getuid());
    return account ? account->pw_dir : "/";
}

} // namespace

PlistKeyValueStore::PlistKeyValueStore(fs::path path) : m_path(std::move(path)), m_file(m_path), m_values(m_file.load())
{
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
    m_unwritten.insert_or_assign(std::string{key}, std::move(value));
    try {
        m_file.change(m_unwritten);
        m_unwritten.clear();
        m_isFailing = false;
    } catch (const std::system_error& error) {
        if (!std::exchange(m_isFailing, true))
            std::fprintf(stderr, "velto: settings not saved: %s: %s\n", m_path.c_str(), error.code().message().c_str());
    }
}

} // namespace velto
