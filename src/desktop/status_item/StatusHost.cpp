// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusHost.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <string_view>

namespace velto {

namespace {

struct Known {
    std::string_view name;
    StatusHostTraits traits;
};

constexpr StatusHostTraits gnome{TimeShape::label, true, true, true, true};
constexpr StatusHostTraits indicators{TimeShape::label, false, false};
constexpr StatusHostTraits wideOnDark{TimeShape::widePicture, true, false};
constexpr StatusHostTraits waybar{TimeShape::widePicture, true, false, false, true};
constexpr StatusHostTraits swaybar{TimeShape::squarePicture, true, false, false, true};
constexpr StatusHostTraits square{TimeShape::squarePicture, false, false};
constexpr StatusHostTraits plasma{TimeShape::squarePicture, false, false, true};
constexpr StatusHostTraits squareOnDark{TimeShape::squarePicture, true, false};

constexpr std::array knownProcesses{
    Known{"gnome-shell", gnome},
    Known{"ayatana-indicator-application-service", indicators},
    Known{"indicator-application-service", indicators},
    Known{"budgie-panel", indicators},
    Known{"notification-area-applet", indicators}, // MATE's
    Known{"waybar", waybar},
    Known{"cinnamon", wideOnDark},
    Known{"xapp-sn-watcher", wideOnDark}, // Cinnamon's
    Known{"swaybar", swaybar},
    Known{"wrapper-2.0", squareOnDark}, // XFCE's plug-ins run in it
    Known{"xfce4-panel", squareOnDark},
    Known{"lxqt-panel", squareOnDark},
    Known{"plasmashell", plasma},
};

// They keep the list of items and leave showing them to others.
constexpr std::array<std::string_view, 2> brokers{"kded5", "kded6"};

// In this order: the desktops derived from GNOME name it as well.
constexpr std::array knownDesktops{
    Known{"Budgie", indicators},
    Known{"Unity", indicators},
    Known{"MATE", indicators},
    Known{"X-Cinnamon", wideOnDark},
    Known{"XFCE", squareOnDark},
    Known{"LXQt", squareOnDark},
    Known{"GNOME", gnome},
};

StatusHostTraits ofProcess(std::string_view process)
{
    const auto* known = std::ranges::find(knownProcesses, process, &Known::name);
    return known != knownProcesses.end() ? known->traits : square;
}

StatusHostTraits ofDesktop(const std::string& names)
{
    for (const auto& known : knownDesktops) {
        std::istringstream list(names);
        for (std::string name; std::getline(list, name, ':');)
            if (name == known.name)
                return known.traits;
    }
    return square;
}

} // namespace

StatusHostTraits recognizeStatusHost(const StatusHostFacts& facts)
{
    std::optional<StatusHostTraits> common;
    for (const auto& process : facts.processes) {
        if (std::ranges::find(brokers, process) != brokers.end())
            continue;
        const auto traits = ofProcess(process);
        if (!common) {
            common = traits;
            continue;
        }
        common->shape = std::max(common->shape, traits.shape);
        common->barIsDark = common->barIsDark && traits.barIsDark;
        common->leftClickOpensMenu = common->leftClickOpensMenu || traits.leftClickOpensMenu;
        common->tellsPlace = common->tellsPlace && traits.tellsPlace;
        common->isAtTopRight = common->isAtTopRight && traits.isAtTopRight;
    }
    return common.value_or(ofDesktop(facts.desktop));
}

} // namespace velto
