// SPDX-License-Identifier: MIT
#include "help_about/HelpView.h"

#include "help_about/ApplicationIcon.h"
#include "help_about/HelpSection.h"
#include "style/Colors.h"
#include "style/Divider.h"
#include "style/SymbolView.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

namespace velto {

namespace {

class HelpViewTest : public testing::Test {
protected:
    HelpViewTest() { view.setPalette(paletteFor(Theme::light)); }

    void show(QSize size)
    {
        view.resize(size);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
        // The bar that comes or goes asks for another layout.
        QCoreApplication::processEvents();
    }

    /// Where `child` stands on the page.
    QRect place(const QWidget* child) const { return {child->mapTo(view.widget(), QPoint()), child->size()}; }

    HelpView view{QSize(600, 800)};
};

QStringList textsOf(const QWidget& widget)
{
    QStringList texts;
    for (const auto* label : widget.findChildren<QLabel*>())
        texts += label->text();
    return texts;
}

TEST_F(HelpViewTest, SaysEverythingToTheLetter)
{
    QStringList sections;
    for (const auto* section : view.findChildren<HelpSection*>())
        sections += textsOf(*section);

    EXPECT_EQ(sections,
        (QStringList{
            "Getting Started",
            "Find velto in your menu bar at the top of your screen:\n• Left click the icon to see your timer\n• Right "
            "click the icon to open the settings",
            "Timer Controls",
            "• Click Start to begin a focus session\n• Pause anytime to take a break\n• Reset to start over\n• Switch "
            "between Focus and Break phases",
            "Customize Your Experience",
            "• Adjust focus and break durations\n• Choose one of our music presets or add your own\n• Enable "
            "auto-transition between phases\n• Customize notification sounds",
            "Music",
            "Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in "
            "Settings.",
            "Pro Tips",
            "• Default: 25 min focus, 5 min break (Pomodoro Technique)\n• Music volume can be adjusted in settings\n• "
            "Settings changes won't interrupt active sessions\n• Access this help anytime from the menu",
        }));
    for (const auto* text : {"Welcome to velto", "A simple focus timer for productivity sessions",
             "You can access this guide anytime from the menu bar → How to Use"})
        EXPECT_EQ(textsOf(view).count(text), 1) << text;
    EXPECT_EQ(textsOf(view).size(), 13);
}

TEST_F(HelpViewTest, StandsInItsPlaceFromTopToBottom)
{
    EXPECT_EQ(view.sizeHint(), QSize(600, 800));
    show({600, 830});

    EXPECT_EQ(place(view.findChild<ApplicationIcon*>()), QRect(260, 32, 80, 80));
    const auto dividers = view.findChildren<Divider*>();
    ASSERT_EQ(dividers.size(), 2);
    auto previous = place(dividers.at(0));
    EXPECT_EQ(previous.x(), 32);
    EXPECT_EQ(previous.width(), 536);
    for (const auto* section : view.findChildren<HelpSection*>()) {
        EXPECT_EQ(place(section).y(), previous.y() + previous.height() + 24);
        EXPECT_EQ(place(section).x(), 32);
        EXPECT_EQ(section->findChild<SymbolView*>()->width(), 32);
        EXPECT_EQ(section->findChild<SymbolView*>()->y(), 0);
        const auto labels = section->findChildren<QLabel*>();
        EXPECT_EQ(labels.at(1)->y() - labels.at(0)->geometry().bottom() - 1, 4);
        previous = place(section);
    }
    EXPECT_EQ(place(dividers.at(1)).y(), previous.y() + previous.height() + 24);
}

TEST_F(HelpViewTest, TheSymbolsAreInTheAccentColour)
{
    show({600, 800});

    for (const auto theme : {Theme::light, Theme::dark}) {
        view.setPalette(paletteFor(theme));
        for (auto* symbol : view.findChildren<SymbolView*>()) {
            const auto picture = symbol->grab().toImage();
            int tinted = 0;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    tinted += picture.pixelColor(x, y) == color(ColorName::accent, theme);
            EXPECT_GT(tinted, 20);
        }
    }
}

TEST_F(HelpViewTest, NeedsNoScrollingAtItsOwnSize)
{
    show({600, 800});

    EXPECT_FALSE(view.verticalScrollBar()->isVisible());
    EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
}

TEST_F(HelpViewTest, MovesTogetherBeforeItScrolls)
{
    for (const int height : {800, 730}) {
        show({600, height});

        EXPECT_FALSE(view.verticalScrollBar()->isVisible()) << height;
        const auto sections = view.findChildren<HelpSection*>();
        for (int i = 2; i < sections.size(); ++i)
            EXPECT_EQ(place(sections.at(i)).y() - place(sections.at(i - 1)).bottom(),
                place(sections.at(1)).y() - place(sections.at(0)).bottom());
    }
}

TEST_F(HelpViewTest, KeepsItsColumnBesideAScrollBar)
{
    show({600, 830});
    const auto wide = place(view.findChildren<HelpSection*>().at(1));

    show({600, 500});

    ASSERT_TRUE(view.verticalScrollBar()->isVisible());
    const auto scrolled = place(view.findChildren<HelpSection*>().at(1));
    EXPECT_EQ(scrolled.x(), wide.x());
    EXPECT_EQ(scrolled.width(), wide.width());
}

TEST_F(HelpViewTest, LinesStandApart)
{
    show({600, 830});

    for (const auto* section : view.findChildren<HelpSection*>()) {
        const auto* text = section->findChildren<QLabel*>().at(1);
        const int lines = std::max<int>(text->text().count(u'\n') + 1, 2);
        EXPECT_GE(text->height(), 1.3 * lines * text->font().pixelSize()) << text->text().toStdString();
    }
}

TEST_F(HelpViewTest, ScrollsToItsEndWhereItIsLower)
{
    show({600, 500});
    ASSERT_TRUE(view.verticalScrollBar()->isVisible());
    const auto labels = view.findChildren<QLabel*>();
    const auto* footer = *std::find_if(labels.begin(), labels.end(),
        [](const auto* label) { return label->text().startsWith("You can access this guide"); });
    EXPECT_FALSE(view.viewport()->rect().contains(footer->mapTo(view.viewport(), footer->rect().center())));

    QTest::keyClick(&view, Qt::Key_PageDown);
    QTest::keyClick(&view, Qt::Key_PageDown);

    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    EXPECT_TRUE(view.viewport()->rect().contains(footer->mapTo(view.viewport(), footer->rect().center())));
}

TEST_F(HelpViewTest, IsWhereItWasScrolledToWhenItComesBack)
{
    show({600, 500});
    view.verticalScrollBar()->setValue(77);

    view.hide();
    view.show();

    EXPECT_EQ(view.verticalScrollBar()->value(), 77);
}

TEST_F(HelpViewTest, TheThumbOfTheScrollBarCanBeDragged)
{
    show({600, 500});
    auto* bar = view.verticalScrollBar();

    QTest::mousePress(bar, Qt::LeftButton, {}, {6, 20});
    QTest::mouseMove(bar, {6, 500});
    QTest::mouseRelease(bar, Qt::LeftButton, {}, {6, 500});

    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(HelpViewTest, IsReadableForAssistiveTechnology)
{
    for (const auto* label : view.findChildren<QLabel*>()) {
        auto* accessible = QAccessible::queryAccessibleInterface(const_cast<QLabel*>(label));
        EXPECT_EQ(accessible->role(), QAccessible::StaticText);
        EXPECT_EQ(accessible->text(QAccessible::Name), label->text());
    }
}

} // namespace

} // namespace velto
