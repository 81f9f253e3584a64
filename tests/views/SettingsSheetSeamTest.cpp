// SPDX-License-Identifier: MIT
#include "views/PanelContainerViewFixture.h"

#include "observation/NotificationCenter.h"
#include "panel/TimerPanelController.h"

#include <QPointer>

#include <functional>

namespace velto {

namespace {

class SettingsSheetSeamTest : public PanelContainerViewTest {
protected:
    SettingsSheetSeamTest()
    {
        makeSheet = [this](AppSettings& sheetSettings, PomodoroTimer& sheetTimer, QWidget& presenter,
                        std::function<void()> done) {
            ++made;
            EXPECT_EQ(&sheetSettings, &settings);
            EXPECT_EQ(&sheetTimer, &timer());
            auto built = std::make_unique<QWidget>(presenter.window(), Qt::Tool);
            sheet = built.get();
            dismiss = std::move(done);
            return built;
        };
    }

    static void requestSettings() { NotificationCenter::defaultCenter().post(statusBarShowSettings); }

    int made = 0;
    QPointer<QWidget> sheet;
    std::function<void()> dismiss;
};

TEST_F(SettingsSheetSeamTest, ARequestOpensTheSheetAndAnotherChangesNothing)
{
    build();
    EXPECT_EQ(made, 0);

    requestSettings();
    ASSERT_TRUE(sheet);
    EXPECT_TRUE(sheet->isVisible());

    requestSettings();
    EXPECT_EQ(made, 1);
}

TEST_F(SettingsSheetSeamTest, TheSheetHidesAndShowsWithThePanelAndIsTheSame)
{
    build();
    requestSettings();
    const auto* first = sheet.data();

    view->hide();
    ASSERT_TRUE(sheet);
    EXPECT_FALSE(sheet->isVisible());

    view->show();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet.data(), first);
    EXPECT_EQ(made, 1);
}

TEST_F(SettingsSheetSeamTest, DismissingClosesItAndTheNextRequestMakesANewOne)
{
    build();
    requestSettings();
    dismiss();
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet.isNull(); }, 20'000));

    view->hide();
    view->show();
    EXPECT_EQ(made, 1);

    requestSettings();
    EXPECT_EQ(made, 2);
}

TEST_F(SettingsSheetSeamTest, WhileHiddenRequestsAreNotHeard)
{
    build();
    view->hide();
    requestSettings();

    EXPECT_EQ(made, 0);
}

TEST_F(SettingsSheetSeamTest, ASheetGoesWithItsView)
{
    build();
    requestSettings();
    view.reset();

    EXPECT_TRUE(sheet.isNull());
}

TEST_F(SettingsSheetSeamTest, WithoutASheetARequestDoesNothing)
{
    makeSheet = {};
    build();

    EXPECT_NO_THROW(requestSettings());
}

} // namespace

} // namespace velto
