// SPDX-License-Identifier: MIT
#include "desktop/storage/PropertyList.h"

#include <algorithm>
#include <charconv>
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

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

template <class Number>
std::optional<Number> numberOf(std::string_view text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// The text of a number element in the only spelling that libplist reads as it is meant; absent when it is
/// not a number.
std::optional<std::string> plainNumber(std::string_view tag, std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    if (tag == "real")
        return numberOf<double>(text) ? std::optional(std::string{text}) : std::nullopt;
    if (const auto number = numberOf<std::int64_t>(text))
        return std::to_string(*number);
    if (const auto number = numberOf<std::uint64_t>(text))
        return std::to_string(*number);
    return std::nullopt;
}

/// libplist takes what begins like a number for one, and anything else for zero. Here what is not a number
/// becomes an array that holds the text: no StoredValue, and not lost.
std::string withPlainNumbers(std::string_view xml)
{
    std::string result;
    std::size_t done = 0;
    for (auto open = xml.find('<'); open != std::string_view::npos; open = xml.find('<', open)) {
        const std::string_view rest = xml.substr(open);
        const auto close = rest.find(rest.starts_with("<!--") ? "-->" : rest.starts_with("<![CDATA[") ? "]]>" : ">");
        if (close == std::string_view::npos)
            break;
        std::string_view tag = trimmed(rest.substr(1, close - 1));
        const bool isEmpty = tag.ends_with('/');
        tag = tag.substr(0, tag.find_first_of(" \t\r\n/"));
        open += close + 1;
        if (tag != "integer" && tag != "real")
            continue;

        const std::string endTag = "</" + std::string{tag} + '>';
        const auto end = isEmpty ? open : xml.find("</", open);
        if (end == std::string_view::npos)
            break;
        if (!isEmpty && !xml.substr(end).starts_with(endTag))
            continue;
        const std::string_view text = xml.substr(open, end - open);
        const auto number = plainNumber(tag, text);
        result += xml.substr(done, open - close - 1 - done);
        result += number ? '<' + std::string{tag} + '>' + *number + endTag
                         : "<array><string>" + std::string{text} + "</string></array>";
        done = open = end + (isEmpty ? 0 : endTag.size());
    }
    return result.append(xml.substr(done));
}

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

PropertyList::PropertyList(const PropertyList& other) : m_root(plist_copy(other.m_root.get())) { }

PropertyList::PropertyList(Node root) : m_root(std::move(root)) { }

PropertyList::Node PropertyList::parseNode(std::string_view bytes)
{
    const PlainNumbers plainNumbers;
    plist_t node = nullptr;
    const auto length = static_cast<std::uint32_t>(bytes.size());
    // Not plist_from_memory: newer versions of it take JSON, too.
    if (plist_is_binary(bytes.data(), length))
        plist_from_bin(bytes.data(), length, &node);
    else
        plist_from_xml(bytes.data(), length, &node);
    return Node{node};
}

std::optional<PropertyList> PropertyList::parse(std::string_view bytes)
{
    if (bytes.size() > maximumSize)
        return std::nullopt;
    Node root = parseNode(bytes.starts_with("bplist") ? bytes : withPlainNumbers(bytes));
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
        std::string value{text, static_cast<std::size_t>(length)};
        if (value.find('\0') != std::string::npos)
            return std::nullopt;
        return value;
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
