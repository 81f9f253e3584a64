// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/storage/PropertyList.h"
#include "platform/KeyValueStore.h"

#include <filesystem>

namespace velto {

/// Keeps the user's values in a property-list file of their own.
///
/// The file is read once, when this is made; nothing is written before the first assignment. Every
/// assignment replaces the file atomically and durably. A file that can't be read as a property list
/// is moved aside first, as "<name>.corrupt-<time>". A symbolic link stays one: its target is replaced.
class PlistKeyValueStore final : public KeyValueStore {
public:
    /// `path` is absolute; folders that are missing are made on the first assignment.
    explicit PlistKeyValueStore(std::filesystem::path path);

    /// "velto/defaults.plist" in the user's configuration folder.
    [[nodiscard]] static std::filesystem::path defaultPath();

    [[nodiscard]] std::optional<StoredValue> object(std::string_view key) const override;
    void set(std::string_view key, StoredValue value) override;

private:
    void load();
    [[nodiscard]] bool save();

    std::filesystem::path m_path;
    PropertyList m_values;
    bool m_holdsForeignFile = false; ///< What lies at the path is not ours to replace.
};

} // namespace velto
