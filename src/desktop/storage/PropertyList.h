// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyValueStore.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velto {

/// A property list with a dictionary at its root.
///
/// Entries of kinds that StoredValue does not know are carried along unchanged.
class PropertyList {
public:
    /// Bytes. libplist runs out of stack on hostile ones of twice that.
    static constexpr std::size_t maximumSize = std::size_t{512} * 1024;
    static constexpr int maximumDepth = 64;

    PropertyList();
    PropertyList(const PropertyList& other);
    PropertyList(PropertyList&&) = default;
    PropertyList& operator=(PropertyList&&) = default;
    ~PropertyList() = default;

    /// Reads the XML and the binary form. Absent when `bytes` are neither, have another root, can't be
    /// written as XML, or exceed the maximum size or depth.
    [[nodiscard]] static std::optional<PropertyList> parse(std::string_view bytes);

    /// Absent when there is nothing under `key`, or something that is not a StoredValue: an integer past
    /// 64 signed bits, a real past the range of a float, "30x" for a number, text with a NUL, a date, an array,
    /// a dictionary.
    [[nodiscard]] std::optional<StoredValue> value(std::string_view key) const;

    /// Text ends at its first NUL: the format can't hold one.
    void set(std::string_view key, const StoredValue& value);

    [[nodiscard]] std::string toXml() const;

private:
    struct Free {
        void operator()(void* node) const;
    };
    using Node = std::unique_ptr<void, Free>;

    explicit PropertyList(Node root);
    [[nodiscard]] static Node parseNode(std::string_view bytes);

    Node m_root;
};

} // namespace velto
