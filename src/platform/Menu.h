// SPDX-License-Identifier: MIT
#pragma once

#include <any>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velto {

struct Menu;

/// A picture by name, drawn in the colour of the text beside it.
struct Symbol {
    std::string name;
    std::string description; ///< For assistive technology. Menus shown today go by their titles alone.
    bool operator==(const Symbol&) const = default;
};

/// One entry of a menu. Plain values: whoever shows the menu reads them; changes are not announced.
struct MenuItem {
    using Action = std::function<void(const MenuItem&)>;

    std::string title;
    bool isSeparator = false;
    bool isCheckable = false; ///< May get a check mark.
    bool isOn = false;        ///< Has a check mark now.
    bool isHidden = false;
    bool isEnabled = true;
    std::optional<Symbol> symbol;
    std::shared_ptr<Menu> submenu;
    std::any representedObject; ///< What the item stands for; read by `action`.
    Action action;              ///< Empty for separators and for items that open a submenu.
};

struct Menu {
    std::string title;
    std::vector<std::shared_ptr<MenuItem>> items;
    std::function<void()> willOpen; ///< Called by whoever shows the menu, just before; may be empty.
};

} // namespace velto
