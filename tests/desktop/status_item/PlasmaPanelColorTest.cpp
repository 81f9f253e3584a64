// SPDX-License-Identifier: MIT
#include "desktop/status_item/PlasmaPanelColor.h"

#include "fixtures/Desktop.h"

#include <gtest/gtest.h>

#include <QSaveFile>
#include <QSignalSpy>

#include <filesystem>

namespace velto {

namespace {

const QColor black(0, 0, 0);
const QColor white(255, 255, 255);

class PlasmaPanelColorTest : public testing::Test {
protected:
    PlasmaPanelColorTest()
    {
        std::filesystem::create_directories(defaults);
        qputenv("XDG_CONFIG_HOME", config.c_str());
        qputenv("XDG_CONFIG_DIRS", defaults.c_str());
        qputenv("XDG_DATA_HOME", data.c_str());
        write(data / "plasma/desktoptheme/night/colors", "[Colors:Window]\nBackgroundNormal=0,0,0\n");
        write(data / "plasma/desktoptheme/default/metadata.json", "{}");
    }

    /// As Plasma does.
    static void write(const std::filesystem::path& path, const char* text)
    {
        std::filesystem::create_directories(path.parent_path());
        QSaveFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0 && file.commit());
    }

    TemporaryFolder folder;
    std::filesystem::path config = folder.path() / "config";
    std::filesystem::path defaults = config / "kdedefaults";
    std::filesystem::path data = folder.path() / "data";
};

} // namespace

TEST_F(PlasmaPanelColorTest, IsOpenWhereNothingIsSet)
{
    EXPECT_EQ(PlasmaPanelColor::read(), std::nullopt);
    write(config / "plasmarc", "[Theme]\nname=night\n[Wallpapers]\nusersWallpapers=\n");
    EXPECT_EQ(PlasmaPanelColor::read(), black);
}

TEST_F(PlasmaPanelColorTest, IsThatOfTheApplicationsUnlessThePanelsHaveATheme)
{
    write(config / "kdeglobals",
        "[Colors:Window][Inactive]\nBackgroundNormal=9,9,9\n[Colors:Window]\n"
        "BackgroundNormal=255,255,255\n");
    EXPECT_EQ(PlasmaPanelColor::read(), white);
    write(config / "plasmarc", "[Theme]\nname=default\n");
    EXPECT_EQ(PlasmaPanelColor::read(), white);
    write(config / "plasmarc", "[Theme]\nname=night\n");
    EXPECT_EQ(PlasmaPanelColor::read(), black);
}

TEST_F(PlasmaPanelColorTest, FollowsAGlobalThemeWhereThePersonHasChosenNothing)
{
    write(config / "kdeglobals", "[Colors:Window]\nBackgroundNormal=255,255,255\n");
    write(defaults / "plasmarc", "[Theme]\nname=night\n");
    EXPECT_EQ(PlasmaPanelColor::read(), black);
    write(config / "plasmarc", "[Theme]\nname=default\n");
    EXPECT_EQ(PlasmaPanelColor::read(), white);
}

TEST_F(PlasmaPanelColorTest, TellsOfAChange)
{
    PlasmaPanelColor color;
    QSignalSpy changes(&color, &PlasmaPanelColor::changed);
    for (const auto& folderOfSettings : {config, defaults}) {
        changes.clear();
        write(folderOfSettings / "plasmarc", "[Theme]\nname=night\n");
        EXPECT_TRUE(eventually([&] { return !changes.empty(); })) << folderOfSettings;
    }
}

} // namespace velto
