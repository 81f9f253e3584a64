// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/storage/PropertyList.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace velto {

/// A property list on disk that other processes may change too.
///
/// A change is put into what the file holds at that moment, under a lock on its folder, and replaces the
/// file atomically and durably. A file that was read to its end and is not a property list is moved aside
/// first, as "<name>.corrupt-<time>"; one that can't be read stays where it is. A symbolic link stays one:
/// its target is replaced. Waits for the disk; one thread at a time.
class PropertyListFile {
public:
    using Values = std::map<std::string, StoredValue, std::less<>>;

    /// `path` is absolute; folders that are missing are made with the first change.
    explicit PropertyListFile(std::filesystem::path path);

    /// What the file holds; empty when there is none, or it can't be read now, or is not a property list.
    /// Removes what a killed process left of its writing.
    [[nodiscard]] PropertyList load();

    /// Puts `values` in, beside what the file holds, or held last if it is gone or broken. Throws
    /// std::system_error; then the file holds a complete state all the same.
    void change(const Values& values);

private:
    std::filesystem::path m_path;
    PropertyList m_last; ///< What the file held when it was last read or written.
};

} // namespace velto
