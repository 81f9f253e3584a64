// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

#include <string>

namespace velto {

/// What the user typed, read as tolerantly as the address bar of a browser does. Invalid if it is no URL.
[[nodiscard]] QUrl streamUrl(const std::string& text);

/// Whether `url` may be opened: http or https, with a host.
[[nodiscard]] bool isOnTheWeb(const QUrl& url);

} // namespace velto
