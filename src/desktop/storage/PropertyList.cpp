// SPDX-License-Identifier: MIT
#include "desktop/storage/PropertyList.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <type_traits>
#include <utility>

#include <plist/plist.h>

namespace velto {

namespace {

using Text = std::unique_ptr<char, decltype(&std::free)>;

/// libplist reads and writes reals with the decimal separator of the process.
class PlainNumbers {
public:
    PlainNumbers() : m_plain(newlocale(LC_ALL_MASK, "C", nullptr)), m_previous(uselocale(m_plain)) { }
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;
    ~PlainNumbers()
    {
        uselocale(m_previous);
        freelocale(m_plain);
    }

private:
    locale_t m_plain;
    locale_t m_previous;
};

std::string xmlOf(plist_t node)
{
    const PlainNumbers plainNumbers;
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(node, &xml, &length);
    const Text owner{xml, &std::free};
    return xml ? std::string{xml, length} : std::string{};
}

bool isDeeperThan(int depth, plist_t node)
{
    const bool isArray = plist_get_node_type(node) == PLIST_ARRAY;
    if (!isArray && plist_get_node_type(node) != PLIST_DICT)
        return false;
    if (depth == 0)
        return true;

    if (isArray) {
        for (std::uint32_t i = 0; i < plist_array_get_size(node); ++i)
            if (isDeeperThan(depth - 1, plist_array_get_item(node, i)))
                return true;
        return false;
    }

    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const std::unique_ptr<void, decltype(&std::free)> owner{position, &std::free};
    for (;;) {
        plist_t child = nullptr;
        plist_dict_next_item(node, position, nullptr, &child);
        if (!child)
            return false;
        if (isDeeperThan(depth - 1, child))
            return true;
    }
}

std::optional<std::int64_t> integerOf(plist_t node)
{
    std::uint64_t bits = 0;
    plist_get_uint_val(node, &bits);
    const auto number = static_cast<std::int64_t>(bits);
    // Only the text tells a negative number from one past the signed range.
    if (number < 0 && xmlOf(node).find("<integer>-") == std::string::npos)
        return std::nullopt;
    return number;
}

std::optional<float> realOf(plist_t node)
{
    double number = 0;
    plist_get_real_val(node, &number);
    if (std::isfinite(number) && std::abs(number) > std::numeric_limits<float>::max())
        return std::nullopt;
    return static_cast<float>(number);
}

} // namespace

void PropertyList::Free::operator()(void* node) const
{
    plist_free(node);
}

PropertyList::PropertyList() : m_root(plist_new_dict()) { }

PropertyList::PropertyList(Node root) : m_root(std::move(root)) { }

PropertyList::Node PropertyList::parseNode(std::string_view bytes)
{
    const PlainNumbers plainNumbers;
    plist_t node = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &node);
    return Node{node};
}

std::optional<PropertyList> PropertyList::parse(std::string_view bytes)
{
    if (bytes.size() > maximumSize)
        return std::nullopt;
    Node root = parseNode(bytes);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT || isDeeperThan(maximumDepth, root.get()))
        return std::nullopt;

    // The binary form knows values that XML does not, and libplist is lenient in what it takes.
    const std::string xml = xmlOf(root.get());
    const Node written = parseNode(xml);
    if (xml.size() > maximumSize || !written || plist_get_node_type(written.get()) != PLIST_DICT
        || plist_dict_get_size(written.get()) != plist_dict_get_size(root.get()))
        return std::nullopt;
    return PropertyList{std::move(root)};
}

std::optional<StoredValue> PropertyList::value(std::string_view key) const
{
    const plist_t node = plist_dict_get_item(m_root.get(), std::string{key}.c_str());
    if (!node)
        return std::nullopt;

    switch (plist_get_node_type(node)) {
    case PLIST_UINT:
        return integerOf(node);
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_REAL:
        return realOf(node);
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return std::string{text, static_cast<std::size_t>(length)};
    }
    case PLIST_DATA: {
        std::uint64_t length = 0;
        const char* bytes = plist_get_data_ptr(node, &length);
        return Blob(bytes, bytes + length);
    }
    default:
        return std::nullopt;
    }
}

void PropertyList::set(std::string_view key, const StoredValue& value)
{
    const auto makeNode = [](const auto& plain) -> plist_t {
        using T = std::decay_t<decltype(plain)>;
        if constexpr (std::is_same_v<T, std::int64_t>) {
            // Which constructor takes negative numbers depends on the version of libplist.
            return parseNode("<plist><integer>" + std::to_string(plain) + "</integer></plist>").release();
        } else if constexpr (std::is_same_v<T, bool>) {
            return plist_new_bool(plain ? 1 : 0);
        } else if constexpr (std::is_same_v<T, float>) {
            return plist_new_real(plain);
        } else if constexpr (std::is_same_v<T, std::string>) {
            return plist_new_string(plain.c_str());
        } else {
            return plist_new_data(reinterpret_cast<const char*>(plain.data()), plain.size());
        }
    };
    plist_dict_set_item(m_root.get(), std::string{key}.c_str(), std::visit(makeNode, value));
}

std::string PropertyList::toXml() const
{
    return xmlOf(m_root.get());
}

} // namespace velto
