// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/storage/PropertyListFile.h"
#include "platform/KeyValueStore.h"

#include <filesystem>

namespace velto {

/// Keeps the user's values in a property-list file of their own.
///
/// The file is read once, when this is made; nothing is written before the first assignment. What can't be
/// written is said once on standard error.
class PlistKeyValueStore final : public KeyValueStore {
public:
    /// `path` is absolute.
    explicit PlistKeyValueStore(std::filesystem::path path);

    /// "velto/defaults.plist" in the user's configuration folder.
    [[nodiscard]] static std::filesystem::path defaultPath();

    [[nodiscard]] std::optional<StoredValue> object(std::string_view key) const override;
    void set(std::string_view key, StoredValue value) override;

private:
    std::filesystem::path m_path;
    PropertyListFile m_file;
    PropertyList m_values;
    PropertyListFile::Values m_unwritten;
    bool m_isFailing = false;
};

} // namespace velto
