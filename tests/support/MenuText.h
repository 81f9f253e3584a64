// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Menu.h"

#include <string>
#include <vector>

namespace velto {

/// A whole menu, one line an item: "Focus Duration / 25 minutes [on]". Submenus follow the item
/// that opens them; "---" is a separator.
inline std::vector<std::string> menuText(const Menu& menu, const std::string& path = {})
{
    std::vector<std::string> lines;
    for (const auto& item : menu.items) {
        auto line = path + (item->isSeparator ? "---" : item->title);
        if (item->symbol)
            line += " {" + item->symbol->name + ", " + item->symbol->description + '}';
        line += item->isOn ? " [on]" : "";
        line += item->isHidden ? " [hidden]" : "";
        line += item->isEnabled ? "" : " [disabled]";
        lines.push_back(line);
        if (item->submenu) {
            const auto below = menuText(*item->submenu, path + item->submenu->title + " / ");
            lines.insert(lines.end(), below.begin(), below.end());
        }
    }
    return lines;
}

/// The lines of `now` that differ from those of `before` in the same place; both are equally long.
inline std::vector<std::string> changedLines(
    const std::vector<std::string>& before, const std::vector<std::string>& now)
{
    if (before.size() != now.size())
        return {"the menus have different lengths"};
    std::vector<std::string> changed;
    for (std::size_t i = 0; i < now.size(); ++i)
        if (before[i] != now[i])
            changed.push_back(now[i]);
    return changed;
}

/// The item of that path ("Focus Duration / 25 minutes"), else null.
inline MenuItem* menuItem(const Menu& menu, const std::string& path)
{
    const auto slash = path.find(" / ");
    for (const auto& item : menu.items) {
        if (item->title == path && !item->isSeparator)
            return item.get();
        if (slash != std::string::npos && item->submenu && item->title == path.substr(0, slash))
            return menuItem(*item->submenu, path.substr(slash + 3));
    }
    return nullptr;
}

} // namespace velto
