// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/storage/PropertyList.h"
#include "platform/KeyValueStore.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

namespace velto {

/// Keeps the user's values in a property-list file of their own.
///
/// The file is read once, when this is made; nothing is written before the first assignment. Assignments
/// are written on a thread of their own, at once, and those that come meanwhile together; PropertyListFile
/// says how. What can't be written is said once on standard error, and tried again with the next
/// assignment and at the end.
class PlistKeyValueStore final : public KeyValueStore {
public:
    /// `path` is absolute. Waits for the disk.
    explicit PlistKeyValueStore(const std::filesystem::path& path);
    PlistKeyValueStore(const PlistKeyValueStore&) = delete;
    PlistKeyValueStore& operator=(const PlistKeyValueStore&) = delete;

    /// Waits up to five seconds for what is still to be written.
    ~PlistKeyValueStore() override;

    /// "velto/defaults.plist" in the user's configuration folder.
    [[nodiscard]] static std::filesystem::path defaultPath();

    [[nodiscard]] std::optional<StoredValue> object(std::string_view key) const override;
    void set(std::string_view key, StoredValue value) override;

    /// Waits until all that was assigned is written, or could not be. False when the disk takes longer.
    bool waitUntilWritten(std::chrono::milliseconds limit);

private:
    class Writer;

    const std::shared_ptr<Writer>
        m_writer; ///< Shared with its thread, which may hang on the disk for longer than this lives.
    PropertyList m_values;
    std::thread m_thread; ///< Starts with the first assignment.
};

} // namespace velto
