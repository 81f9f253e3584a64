// SPDX-License-Identifier: MIT
#include "app/VeltoApp.h"
#include "desktop/bus/SessionBus.h"
#include "desktop/menus/DBusMenuTypes.h"
#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/DesktopStatusItem.h"
#include "fixtures/BusClient.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <QDBusMetaType>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace velto {

namespace {

using Lines = std::vector<std::string>;
using Edits = std::vector<std::pair<std::string, std::string>>;

/// One line an entry: the path, then [x] or [ ] where it can have a mark, (hidden), (disabled), (symbol).
const Lines fresh = {
    "Start Focus",
    "Reset Focus (hidden) (disabled)",
    "-",
    "Focus Duration",
    "Focus Duration/15 minutes [ ]",
    "Focus Duration/20 minutes [ ]",
    "Focus Duration/25 minutes [x]",
    "Focus Duration/30 minutes [ ]",
    "Focus Duration/45 minutes [ ]",
    "Focus Duration/50 minutes [ ]",
    "Focus Duration/60 minutes [ ]",
    "Focus Duration/90 minutes [ ]",
    "Focus Duration/-",
    "Focus Duration/Custom…",
    "Break Duration",
    "Break Duration/5 minutes [x]",
    "Break Duration/10 minutes [ ]",
    "Break Duration/15 minutes [ ]",
    "Break Duration/20 minutes [ ]",
    "Break Duration/30 minutes [ ]",
    "Break Duration/-",
    "Break Duration/Custom…",
    "Presets",
    "Presets/25m focus / 5m break [x]",
    "Presets/50m focus / 10m break [ ]",
    "Presets/60m focus / 10m break [ ]",
    "Presets/90m focus / 15m break [ ]",
    "-",
    "Focus Music",
    "Focus Music/None [x]",
    "Focus Music/-",
    "Focus Music/Lo-Fi [ ]",
    "Focus Music/Deep Space Ambient [ ]",
    "Focus Music/Groove Salad [ ]",
    "Focus Music/DEF CON Radio [ ]",
    "Focus Music/Space Station [ ]",
    "Focus Music/Lush [ ]",
    "Focus Music/Custom URL [ ]",
    "Focus Music/-",
    "Focus Music/Edit Custom URL…",
    "Break Music",
    "Break Music/None [x]",
    "Break Music/-",
    "Break Music/Lo-Fi [ ]",
    "Break Music/Deep Space Ambient [ ]",
    "Break Music/Groove Salad [ ]",
    "Break Music/DEF CON Radio [ ]",
    "Break Music/Space Station [ ]",
    "Break Music/Lush [ ]",
    "Break Music/Custom URL [ ]",
    "Break Music/-",
    "Break Music/Edit Custom URL…",
    "-",
    "Current Phase",
    "Current Phase/Focus [x]",
    "Current Phase/Break [ ]",
    "-",
    "Auto-Transition [ ]",
    "-",
    "Settings… (symbol)",
    "How to Use (symbol)",
    "About velto (symbol)",
    "-",
    "Quit",
};

Lines freshBut(const Edits& edits)
{
    auto lines = fresh;
    for (const auto& [from, to] : edits) {
        const auto line = std::ranges::find(lines, from);
        if (line == lines.end())
            ADD_FAILURE() << "no line " << from;
        else
            *line = to;
    }
    return lines;
}

void describe(const DBusMenuLayout& menu, const std::string& path, Lines& lines)
{
    for (const auto& entry : menu.children) {
        const auto& properties = entry.properties;
        auto line = path
            + (properties.value("type") == "separator" ? "-" : properties.value("label").toString().toStdString());
        const auto submenu = line + "/";
        if (properties.value("toggle-type") == "checkmark")
            line += properties.value("toggle-state").toInt() == 1 ? " [x]" : " [ ]";
        if (!properties.value("visible").toBool())
            line += " (hidden)";
        if (!properties.value("enabled", true).toBool())
            line += " (disabled)";
        if (properties.contains("icon-data"))
            line += " (symbol)";
        EXPECT_EQ(properties.value("children-display") == "submenu", !entry.children.isEmpty()) << line;
        lines.push_back(line);
        describe(entry, submenu, lines);
    }
}

/// The program with everything faked but its status item.
class ExportedMenuTest : public testing::Test {
protected:
    World world;
    ClickGesture gesture{world.runLoop};
    SessionBus bus{QStringLiteral("program")};
    BusClient client{bus.connection().baseService()};
    std::unique_ptr<VeltoApp> app;

    void launch()
    {
        world.platform.makeStatusItem = [this] {
            return std::make_unique<DesktopStatusItem>(
                gesture, [](ClickEvent, const std::function<void()>& action) { action(); }, bus);
        };
        app = std::make_unique<VeltoApp>(world.platform);
        app->appDelegate().applicationDidFinishLaunching();
        world.runLoop.advance(1s);
    }

    PomodoroTimer& timer() { return app->appDelegate().timerProvider(); }

    DBusMenuLayout layout()
    {
        world.runLoop.runTurns();
        client.settle();
        const auto reply = client.call("/MenuBar", "com.canonical.dbusmenu", "GetLayout", {0, -1, QStringList()});
        return qdbus_cast<DBusMenuLayout>(reply.arguments().value(1));
    }

    Lines menu()
    {
        Lines lines;
        describe(layout(), "", lines);
        return lines;
    }

    /// Clicks the entry at the end of the path, as a panel host does.
    void choose(const QStringList& path)
    {
        auto here = layout();
        for (const auto& label : path) {
            const auto found = std::ranges::find_if(
                here.children, [&](const auto& entry) { return entry.properties.value("label") == label; });
            ASSERT_NE(found, here.children.end()) << label.toStdString();
            here = DBusMenuLayout(*found);
        }
        client.call("/MenuBar", "com.canonical.dbusmenu", "Event",
            {here.id, "clicked", QVariant::fromValue(QDBusVariant(0)), QVariant::fromValue(uint(0))});
        client.settle();
        world.runLoop.runTurns();
    }
};

const Edits running = {{"Start Focus", "Pause Focus"}, {"Reset Focus (hidden) (disabled)", "Reset Focus"}};

TEST_F(ExportedMenuTest, ShowsAFreshTimer)
{
    launch();

    EXPECT_EQ(menu(), fresh);
}

TEST_F(ExportedMenuTest, ShowsARunningTimer)
{
    launch();
    choose({"Start Focus"});

    EXPECT_TRUE(timer().isRunning());
    EXPECT_EQ(menu(), freshBut(running));
}

TEST_F(ExportedMenuTest, ShowsAPausedTimer)
{
    launch();
    choose({"Start Focus"});
    world.runLoop.advance(5s);
    choose({"Pause Focus"});

    EXPECT_FALSE(timer().isRunning());
    EXPECT_EQ(timer().remainingSeconds(), 1495);
    EXPECT_EQ(menu(), freshBut({{"Reset Focus (hidden) (disabled)", "Reset Focus"}}));

    choose({"Reset Focus"});
    EXPECT_EQ(menu(), fresh);
}

TEST_F(ExportedMenuTest, ShowsATimerPausedAtFullLength)
{
    launch();
    choose({"Start Focus"});
    choose({"Pause Focus"});

    EXPECT_EQ(menu(), freshBut({{"Reset Focus (hidden) (disabled)", "Reset Focus (disabled)"}}));
}

TEST_F(ExportedMenuTest, ShowsTheBreak)
{
    launch();
    choose({"Current Phase", "Break"});

    EXPECT_EQ(timer().phase(), PomodoroPhase::breakTime);
    EXPECT_EQ(menu(),
        freshBut(
            {{"Start Focus", "Start Break"}, {"Reset Focus (hidden) (disabled)", "Reset Break (hidden) (disabled)"},
                {"Current Phase/Focus [x]", "Current Phase/Focus [ ]"},
                {"Current Phase/Break [ ]", "Current Phase/Break [x]"}}));
}

TEST_F(ExportedMenuTest, MarksNothingForADurationThatIsNotListed)
{
    launch();
    timer().updateDurations(35, 5);

    EXPECT_EQ(menu(),
        freshBut({{"Focus Duration/25 minutes [x]", "Focus Duration/25 minutes [ ]"},
            {"Presets/25m focus / 5m break [x]", "Presets/25m focus / 5m break [ ]"}}));
}

TEST_F(ExportedMenuTest, MarksTheOnePresetThatFitsBothDurations)
{
    launch();
    Edits edits = {{"Focus Duration/25 minutes [x]", "Focus Duration/25 minutes [ ]"},
        {"Break Duration/5 minutes [x]", "Break Duration/5 minutes [ ]"},
        {"Break Duration/10 minutes [ ]", "Break Duration/10 minutes [x]"},
        {"Presets/25m focus / 5m break [x]", "Presets/25m focus / 5m break [ ]"}};

    choose({"Presets", "50m focus / 10m break"});
    auto fifty = edits;
    fifty.emplace_back("Focus Duration/50 minutes [ ]", "Focus Duration/50 minutes [x]");
    fifty.emplace_back("Presets/50m focus / 10m break [ ]", "Presets/50m focus / 10m break [x]");
    EXPECT_EQ(menu(), freshBut(fifty));

    choose({"Focus Duration", "60 minutes"});
    auto sixty = edits;
    sixty.emplace_back("Focus Duration/60 minutes [ ]", "Focus Duration/60 minutes [x]");
    sixty.emplace_back("Presets/60m focus / 10m break [ ]", "Presets/60m focus / 10m break [x]");
    EXPECT_EQ(menu(), freshBut(sixty));
    EXPECT_EQ(timer().breakDuration(), 600);
}

TEST_F(ExportedMenuTest, MarksTheMusicThatIsChosenAndOnlyNoneWhileItIsOff)
{
    world.store.set("focusMusicPreset", Blob{'"', 'L', 'u', 's', 'h', '"'});
    launch();
    EXPECT_EQ(app->appDelegate().settingsProvider().focusMusicPreset(), MusicPreset::lush);
    EXPECT_EQ(menu(), fresh);

    choose({"Focus Music", "Groove Salad"});
    EXPECT_EQ(menu(),
        freshBut({{"Focus Music/None [x]", "Focus Music/None [ ]"},
            {"Focus Music/Groove Salad [ ]", "Focus Music/Groove Salad [x]"}}));

    choose({"Focus Music", "None"});
    EXPECT_EQ(menu(), fresh);
}

TEST_F(ExportedMenuTest, RestartsTheMusicOfTheRunningPhaseOnly)
{
    launch();
    choose({"Start Focus"});

    choose({"Break Music", "Lush"});
    EXPECT_TRUE(world.players.opened.empty());

    choose({"Focus Music", "Groove Salad"});
    EXPECT_EQ(world.players.opened.size(), 1U);
    EXPECT_EQ(world.players.calls.back(), "1 play");

    choose({"Focus Music", "None"});
    EXPECT_TRUE(std::ranges::count(world.players.calls, "1 pause"));
    EXPECT_EQ(world.players.opened.size(), 1U);
}

TEST_F(ExportedMenuTest, FlipsTheTransitionAndShowsTheWindows)
{
    launch();

    choose({"Auto-Transition"});
    EXPECT_TRUE(timer().autoTransition());
    EXPECT_EQ(menu(), freshBut({{"Auto-Transition [ ]", "Auto-Transition [x]"}}));
    choose({"Auto-Transition"});
    EXPECT_EQ(menu(), fresh);

    world.windowsShown.clear();
    choose({"How to Use"});
    choose({"About velto"});
    EXPECT_EQ(world.windowsShown, Lines({"help", "about"}));
}

} // namespace

} // namespace velto
