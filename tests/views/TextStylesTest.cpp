// SPDX-License-Identifier: MIT
#include "help_about/AboutView.h"
#include "help_about/HelpView.h"
#include "style/Colors.h"
#include "style/Paragraph.h"
#include "style/TextStyle.h"
#include "support/FakeBundle.h"
#include "support/FakeCalendar.h"
#include "support/FakeWorkspace.h"
#include "views/SettingsSheetFixture.h"
#include "views/TextRecorder.h"

#include <algorithm>
#include <optional>
#include <set>
#include <vector>

namespace velto {

namespace {

constexpr auto label = ColorName::label;
constexpr auto secondary = ColorName::secondaryLabel;

struct Look {
    QString text; ///< All of it, which may be drawn line by line.
    TextStyle style;
    std::optional<ColorName> color; ///< Absent for white.
    std::optional<QFont::Weight> weight = {};
};

class TextStylesTest : public SettingsSheetTest {
protected:
    ~TextStylesTest() override { QApplication::setPalette(m_palette); }

    static void expectLooks(QWidget& view, const std::vector<Look>& looks)
    {
        for (const auto theme : {Theme::light, Theme::dark}) {
            QApplication::setPalette(paletteFor(theme));
            view.show();
            QCoreApplication::processEvents();
            std::set<QString> seen;
            for (const auto& drawn : drawnTexts(view)) {
                const auto look = std::ranges::find_if(
                    looks, [&](const Look& candidate) { return candidate.text.contains(drawn.text.trimmed()); });
                ASSERT_NE(look, looks.end()) << drawn.text.toStdString();
                seen.insert(look->text);
                const auto font = textFont(look->style);
                EXPECT_EQ(drawn.font.pixelSize(), font.pixelSize()) << drawn.text.toStdString();
                EXPECT_EQ(drawn.font.weight(), look->weight.value_or(font.weight())) << drawn.text.toStdString();
                EXPECT_EQ(drawn.color, look->color ? color(*look->color, theme) : QColor(Qt::white))
                    << drawn.text.toStdString();
            }
            EXPECT_EQ(seen.size(), looks.size());
        }
    }

private:
    QPalette m_palette = QApplication::palette();
};

TEST_F(TextStylesTest, OfTheForm)
{
    settings.enableFocusMusic.set(true);
    open({500, 1600});
    std::vector<Look> looks{
        {"Automatically start the next phase when timer reaches 0", TextStyle::footnote, secondary},
        {"Chill beats for focus", TextStyle::caption, secondary},
        {"minutes", TextStyle::body, secondary},
        {"25%", TextStyle::body, secondary},
        {"Cancel", TextStyle::body, label, QFont::Medium},
        {"Apply", TextStyle::body, std::nullopt, QFont::Medium},
    };
    for (const auto* headline : {"Settings", "Durations", "Behavior", "Sounds", "Music"})
        looks.push_back({headline, TextStyle::headline, label});
    for (const auto* text : {"Focus", "Break", "25", "5", "Auto-Transition", "Countdown Tick", "Focus End", "Break End",
             "Tink", "Glass", "Submarine", "Enable music during focus", "Enable music during break", "Lo-Fi", "Volume"})
        looks.push_back({text, TextStyle::body, label});
    std::ranges::stable_sort(looks, {}, [](const Look& look) { return look.text.size(); });

    expectLooks(*sheet, looks);
}

TEST_F(TextStylesTest, OfHelp)
{
    HelpView view{{600, 800}};
    view.resize(view.sizeHint());
    std::vector<Look> looks{
        {"Welcome to velto", TextStyle::title, label},
        {"A simple focus timer for productivity sessions", TextStyle::body, secondary},
        {"You can access this guide anytime from the menu bar → How to Use", TextStyle::footnote, secondary},
    };
    for (const auto* headline : {"Getting Started", "Timer Controls", "Customize Your Experience", "Music", "Pro Tips"})
        looks.push_back({headline, TextStyle::headline, label});
    for (const auto* description : view.findChildren<Paragraph*>())
        if (std::ranges::none_of(looks, [&](const Look& look) { return look.text == description->text(); }))
            looks.push_back({description->text(), TextStyle::body, secondary});

    expectLooks(view, looks);
}

TEST_F(TextStylesTest, OfAbout)
{
    FakeBundle bundle;
    FakeCalendar calendar;
    FakeWorkspace workspace;
    bundle.values = {{"CFBundleShortVersionString", "1.2"}, {"CFBundleVersion", "34"}};
    AboutView view{{640, 240}, {"Somebody", {}, {}, {}}, bundle, calendar, workspace, runLoop};
    view.resize(view.sizeHint());

    expectLooks(view,
        {
            {"velto - Focus Timer", TextStyle::title2, label},
            {"A focus timer companion built to keep sessions simple and distraction-free.", TextStyle::body, secondary},
            {"Support", TextStyle::headline, std::nullopt},
            {"Website", TextStyle::headline, std::nullopt},
            {"Buy Me a Coffee", TextStyle::headline, std::nullopt},
            {"v1.2 (34)", TextStyle::subheadline, secondary},
            {"© 2025 Somebody. All rights reserved.", TextStyle::footnote, ColorName::tertiaryLabel},
        });
}

} // namespace

} // namespace velto
