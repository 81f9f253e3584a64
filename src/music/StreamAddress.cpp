// SPDX-License-Identifier: MIT
#include "music/StreamAddress.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace velto {

namespace {

constexpr std::size_t longestAddress = 8192;
constexpr std::string_view unreserved = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~";
constexpr std::string_view subDelimiters = "!$&'()*+,;=";
constexpr std::string_view hexDigits = "0123456789abcdefABCDEF";

bool contains(std::string_view set, char c)
{
    return set.find(c) != std::string_view::npos;
}

/// Only unreserved characters, sub-delimiters, those in `extra`, and whole percent escapes.
bool isMadeOf(std::string_view text, std::string_view extra)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '%') {
            if (i + 2 >= text.size() || !contains(hexDigits, text[i + 1]) || !contains(hexDigits, text[i + 2]))
                return false;
            i += 2;
        } else if (!contains(unreserved, c) && !contains(subDelimiters, c) && !contains(extra, c)) {
            return false;
        }
    }
    return true;
}

/// Removes `prefix` from the front of `text`, in either letter case.
bool consume(std::string_view& text, std::string_view prefix)
{
    const auto equalButForCase = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + ('a' - 'A') : a) == b; };
    if (text.size() < prefix.size() || !std::ranges::equal(text.substr(0, prefix.size()), prefix, equalButForCase))
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// Four decimal numbers up to 255, between dots.
bool isIpv4(std::string_view text)
{
    for (int part = 0; part < 4; ++part) {
        const auto digits = text.substr(0, text.find('.'));
        std::uint8_t number = 0;
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), number);
        if (error != std::errc{} || end != digits.end() || digits.size() > 3)
            return false;
        text.remove_prefix(digits.size());
        if (part < 3 && (text.empty() || text.front() != '.'))
            return false;
        if (part < 3)
            text.remove_prefix(1);
    }
    return text.empty();
}

/// Eight groups of up to four hexadecimal digits, one run of which may be written "::".
bool isIpv6(std::string_view text)
{
    int groups = 0;
    bool shortened = false;
    if (text.starts_with("::")) {
        shortened = true;
        text.remove_prefix(2);
    }
    while (!text.empty()) {
        if (isIpv4(text)) {
            groups += 2;
            break;
        }
        const auto digits = std::min(text.find_first_not_of(hexDigits), text.size());
        if (digits == 0 || digits > 4)
            return false;
        ++groups;
        text.remove_prefix(digits);
        if (text.empty())
            break;
        if (text.starts_with("::") && !shortened) {
            shortened = true;
            text.remove_prefix(2);
        } else if (text.starts_with(':') && text.size() > 1) {
            text.remove_prefix(1);
        } else {
            return false;
        }
    }
    return shortened ? groups < 8 : groups == 8;
}

bool isHost(std::string_view text)
{
    if (text.starts_with('['))
        return text.ends_with(']') && isIpv6(text.substr(1, text.size() - 2));
    return !text.empty() && isMadeOf(text, "");
}

/// Empty, or a number that a server can listen on.
bool isPort(std::string_view text)
{
    if (text.empty())
        return true;
    std::uint16_t port = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), port);
    return error == std::errc{} && end == text.end() && port > 0;
}

bool isAuthority(std::string_view text)
{
    if (const auto at = text.find('@'); at != std::string_view::npos) {
        if (!isMadeOf(text.substr(0, at), ":"))
            return false;
        text.remove_prefix(at + 1);
    }
    const auto colon = text.find(':', text.starts_with('[') ? text.find(']') : 0);
    const auto host = text.substr(0, colon);
    return isHost(host) && (colon == std::string_view::npos || isPort(text.substr(colon + 1)));
}

} // namespace

bool isStreamAddress(std::string_view text)
{
    if (text.size() > longestAddress)
        return false;
    if (!consume(text, "http://") && !consume(text, "https://"))
        return false;

    const auto authority = text.substr(0, text.find_first_of("/?#"));
    text.remove_prefix(authority.size());
    const auto hash = text.find('#');
    const auto fragment = hash == std::string_view::npos ? "" : text.substr(hash + 1);
    return isAuthority(authority) && isMadeOf(text.substr(0, hash), ":@/?") && isMadeOf(fragment, ":@/?");
}

} // namespace velto
