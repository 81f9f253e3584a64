// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StatusItem.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velto {

class FakeStatusItemButton final : public StatusItemButton {
public:
    void setFont(double points) override { fontSize = points; }
    void setToolTip(const std::string& text) override { toolTip = text; }
    void setTitle(const std::string& title) override { titles.push_back(title); }
    void setAppearsDisabled(bool disabled) override { appearsDisabled.push_back(disabled); }
    void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
    std::optional<Rect> frame() const override { return rect; }

    [[nodiscard]] std::string title() const { return titles.empty() ? "" : titles.back(); }

    double fontSize = 0;
    std::string toolTip;
    std::vector<std::string> titles;   ///< Every one set, the latest last.
    std::vector<bool> appearsDisabled; ///< Likewise.
    std::function<void()> action;
    std::optional<Rect> rect = Rect{1200, 1080, 40, 22};
};

class FakeStatusItem final : public StatusItem {
public:
    explicit FakeStatusItem(bool hasButton = true) :
        m_button(hasButton ? std::make_unique<FakeStatusItemButton>() : nullptr)
    {
    }

    FakeStatusItemButton* button() override { return m_button.get(); }
    void setMenu(std::shared_ptr<Menu> newMenu) override { menu = std::move(newMenu); }
    void menuDidChange() override { ++menuChanges; }
    void popUpMenu() override
    {
        ++popUps;
        if (onPopUp)
            onPopUp();
        if (menu && menu->willOpen)
            menu->willOpen();
    }

    std::shared_ptr<Menu> menu;
    int menuChanges = 0;
    int popUps = 0;
    std::function<void()> onPopUp; ///< Runs before the menu hears that it opens; may be empty.

private:
    std::unique_ptr<FakeStatusItemButton> m_button;
};

} // namespace velto
