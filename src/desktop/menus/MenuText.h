// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <string>

namespace velto {

/// The title of a menu entry in the user's language.
[[nodiscard]] inline QString menuText(const std::string& title)
{
    return QCoreApplication::translate("Menu", title.c_str());
}

} // namespace velto
