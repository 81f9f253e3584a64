// SPDX-License-Identifier: MIT
#include "views/SettingsSheetFixture.h"

#include <gmock/gmock.h>

#include <functional>
#include <tuple>
#include <vector>

namespace velto {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

class SettingsSheetControlsTest : public SettingsSheetTest { };

// Durations.

TEST_F(SettingsSheetControlsTest, TypingTenMinutesIsAppliedThoughTheSliderEndsAtTwentyFive)
{
    open();

    type(find<EditableNumberField>("Focus"), "10");
    QTest::mouseClick(find<Button>("Apply"), Qt::LeftButton);

    EXPECT_EQ(settings.focusMinutes(), 10);
    EXPECT_EQ(timer().focusDuration(), 600);
    EXPECT_EQ(dismissals, 1);
}

TEST_F(SettingsSheetControlsTest, ATypedNumberMovesTheSliderAsFarAsItGoes)
{
    open();
    auto* field = find<EditableNumberField>("Focus");

    for (const auto& [typed, position] : std::vector<std::pair<QString, int>>{{"60", 60}, {"999", 120}, {"1", 25}}) {
        type(field, typed);
        QTest::keyClick(field, Qt::Key_Return);
        settle();

        EXPECT_EQ(find<Slider>("Focus")->value(), position);
        EXPECT_EQ(field->text(), typed);
    }
}

TEST_F(SettingsSheetControlsTest, TheSliderReplacesAHalfTypedNumber)
{
    open();
    auto* field = find<EditableNumberField>("Focus");
    type(field, "4");

    find<Slider>("Focus")->triggerAction(QAbstractSlider::SliderSingleStepAdd);

    EXPECT_EQ(field->text(), "26");
    sheet->setFocus();
    EXPECT_EQ(field->text(), "26");
}

TEST_F(SettingsSheetControlsTest, APressOnTheSliderReplacesAHalfTypedNumber)
{
    open();
    auto* field = find<EditableNumberField>("Focus");
    auto* slider = find<Slider>("Focus");
    const int knob = startOf(slider);
    for (const auto& [place, number] : {std::pair{knob, "25"}, std::pair{slider->width() - 4, "120"}}) {
        type(field, "4");

        QTest::mouseClick(slider, Qt::LeftButton, {}, {place, slider->height() / 2});

        EXPECT_EQ(field->text(), number);
        sheet->setFocus();
        EXPECT_EQ(field->text(), number);
        slider->setSliderPosition(25);
        settle();
    }
}

TEST_F(SettingsSheetControlsTest, TheHandBringsAValueFromBeyondTheSliderToItsEnd)
{
    const auto press = [](QWidget* slider, int x) {
        QTest::mouseClick(slider, Qt::LeftButton, {}, {x, slider->height() / 2});
    };
    const auto key = [](Qt::Key pressed) { return [pressed](Slider* slider) { QTest::keyClick(slider, pressed); }; };
    const auto atStart = [&](Slider* slider) { press(slider, startOf(slider)); };
    const auto atEnd = [&](Slider* slider) { press(slider, slider->width() - startOf(slider)); };
    const auto beyondEnd = [&](Slider* slider) { press(slider, slider->width() - 1); };
    const auto drag = [&](Slider* slider) {
        const int middle = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, {startOf(slider), middle});
        QTest::mouseMove(slider, {0, middle});
        QTest::mouseRelease(slider, Qt::LeftButton, {}, {0, middle});
    };
    const std::vector<std::tuple<std::int64_t, std::function<void(Slider*)>, const char*>> table{
        {10, atStart, "25"},
        {10, drag, "25"},
        {10, key(Qt::Key_Home), "25"},
        {10, key(Qt::Key_Left), "25"},
        {10, key(Qt::Key_PageDown), "25"},
        {0, key(Qt::Key_Home), "25"},
        {999, atEnd, "120"},
        {999, beyondEnd, "120"},
        {999, key(Qt::Key_End), "120"},
        {999, key(Qt::Key_PageUp), "120"},
    };
    for (const auto& [stored, act, number] : table) {
        settings.focusMinutes.set(stored);
        open();
        EXPECT_EQ(find<EditableNumberField>("Focus")->text(), QString::number(stored));

        act(find<Slider>("Focus"));

        EXPECT_EQ(find<EditableNumberField>("Focus")->text(), number) << stored;
    }
}

TEST_F(SettingsSheetControlsTest, AssistiveTechnologyMovesASliderInTheUnitOfItsValue)
{
    settings.musicVolume.set(0.999F);
    settings.focusMinutes.set(999);
    open();
    auto* volume = QAccessible::queryAccessibleInterface(find<Slider>("Volume"))->valueInterface();
    auto* focus = QAccessible::queryAccessibleInterface(find<Slider>("Focus"))->valueInterface();

    EXPECT_EQ(volume->minimumValue().toDouble(), 0);
    EXPECT_EQ(volume->maximumValue().toDouble(), 100);
    EXPECT_EQ(volume->minimumStepSize().toDouble(), 1);
    EXPECT_EQ(volume->currentValue().toDouble(), 100);
    EXPECT_EQ(focus->minimumValue().toDouble(), 25);
    EXPECT_EQ(focus->maximumValue().toDouble(), 120);
    EXPECT_EQ(focus->minimumStepSize().toDouble(), 1);

    volume->setCurrentValue(53.0);
    focus->setCurrentValue(120.0);
    settle();

    EXPECT_EQ(volume->currentValue().toDouble(), 53);
    EXPECT_TRUE(visibleTexts().contains("53%"));
    EXPECT_EQ(find<EditableNumberField>("Focus")->text(), "120");
    QTest::keyClick(sheet.get(), Qt::Key_Return);
    EXPECT_EQ(settings.musicVolume(), 0.53F);
    EXPECT_EQ(settings.focusMinutes(), 120);
}

TEST_F(SettingsSheetControlsTest, DraggingTheSliderShowsTheNumberAtOnce)
{
    open();
    auto* slider = find<Slider>("Break");

    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() / 2, slider->height() / 2});
    QTest::mouseMove(slider, {slider->width() - 1, slider->height() / 2});

    EXPECT_EQ(find<EditableNumberField>("Break")->text(), "30");
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() - 1, slider->height() / 2});
}

TEST_F(SettingsSheetControlsTest, SlidersMoveWithTheKeyboard)
{
    open();
    auto* slider = find<Slider>("Focus");
    slider->setFocus();

    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(slider->value(), 26);
    QTest::keyClick(slider, Qt::Key_Left);
    EXPECT_EQ(slider->value(), 25);
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(find<EditableNumberField>("Focus")->text(), "120");
    QTest::keyClick(slider, Qt::Key_Home);
    EXPECT_EQ(find<EditableNumberField>("Focus")->text(), "25");
}

TEST_F(SettingsSheetControlsTest, ApplyIsDisabledWhileADurationIsBelowOne)
{
    settings.breakMinutes.set(0);
    open();
    auto* apply = find<Button>("Apply");
    EXPECT_FALSE(apply->isEnabled());

    QTest::keyClick(sheet.get(), Qt::Key_Return);
    EXPECT_EQ(dismissals, 0);
    EXPECT_THAT(store.writes, IsEmpty());

    type(find<EditableNumberField>("Break"), "1");
    sheet->setFocus();
    settle();
    EXPECT_TRUE(apply->isEnabled());
}

// Sounds.

TEST_F(SettingsSheetControlsTest, ThePlayButtonPlaysWhatIsChosenInItsRow)
{
    open();
    find<PopUpPicker>("Focus End")->setCurrentText("Hero");
    settle();

    QTest::mouseClick(find<Button>("Play Focus End"), Qt::LeftButton);
    QTest::mouseClick(find<Button>("Play Countdown Tick"), Qt::LeftButton);

    EXPECT_THAT(sounds.played, ElementsAre("Hero", "Tink"));
    EXPECT_THAT(store.writes, IsEmpty());
}

TEST_F(SettingsSheetControlsTest, ThePlayButtonBesideNoneIsDisabled)
{
    settings.breakEndSound.set(SoundOption::none);
    open();
    EXPECT_FALSE(find<Button>("Play Break End")->isEnabled());
    EXPECT_TRUE(find<Button>("Play Focus End")->isEnabled());

    find<PopUpPicker>("Break End")->setCurrentText("Purr");
    find<PopUpPicker>("Focus End")->setCurrentText("None");
    settle();

    EXPECT_TRUE(find<Button>("Play Break End")->isEnabled());
    EXPECT_FALSE(find<Button>("Play Focus End")->isEnabled());
}

// Music.

TEST_F(SettingsSheetControlsTest, ThePickerOfAPhaseComesAndGoesWithItsSwitch)
{
    open();
    auto* toggle = find<ToggleSwitch>("Enable music during break");
    auto* picker = find<PopUpPicker>("Preset", 1);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_FALSE(visibleTexts().contains("Chill beats for focus"));

    toggle->click();
    settle();
    EXPECT_TRUE(picker->isVisible());
    EXPECT_FALSE(find<PopUpPicker>("Preset", 0)->isVisible());
    EXPECT_TRUE(visibleTexts().contains("Chill beats for focus"));

    toggle->click();
    settle();
    EXPECT_FALSE(picker->isVisible());
    EXPECT_FALSE(visibleTexts().contains("Chill beats for focus"));
    EXPECT_FALSE(settings.enableBreakMusic());
}

TEST_F(SettingsSheetControlsTest, TheFieldForAnAddressReplacesTheDescriptionWithoutMovingAnything)
{
    settings.enableFocusMusic.set(true);
    open();
    auto* picker = find<PopUpPicker>("Preset");
    auto* field = find<TextField>("Custom URL");
    const auto below = frame(find<ToggleSwitch>("Enable music during break"));
    EXPECT_FALSE(field->isVisible());

    picker->setCurrentText("Custom URL");
    settle();
    EXPECT_TRUE(field->isVisible());
    EXPECT_FALSE(visibleTexts().contains("Your own streaming URL"));
    EXPECT_EQ(frame(find<ToggleSwitch>("Enable music during break")), below);

    type(field, "http://radio.example/x");
    picker->setCurrentText("Groove Salad");
    settle();
    EXPECT_FALSE(field->isVisible());
    EXPECT_TRUE(visibleTexts().contains("Downtempo grooves"));

    QTest::keyClick(sheet.get(), Qt::Key_Return);
    EXPECT_EQ(settings.focusCustomURL(), "http://radio.example/x");
    EXPECT_EQ(settings.focusMusicPreset(), MusicPreset::grooveSalad);
}

TEST_F(SettingsSheetControlsTest, AnAddressLongerThanItsFieldTakesStaysWhole)
{
    const std::string address(40'000, 'x');
    settings.focusCustomURL.set(address);
    open();

    find<Button>("Apply")->click();
    EXPECT_EQ(settings.focusCustomURL(), address);
}

TEST_F(SettingsSheetControlsTest, ASwitchStaysUnderThePointerWhenThePageGetsShorter)
{
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(true);
    open();
    indicator().setValue(indicator().maximum());
    auto* toggle = find<ToggleSwitch>("Enable music during break");
    const auto place = frame(toggle);

    toggle->click();
    settle();
    EXPECT_EQ(frame(toggle), place);

    indicator().setValue(0);
    settle();
    EXPECT_LT(indicator().maximum(), frame(toggle).bottom()) << "The room that was kept goes when it is out of sight";
}

TEST_F(SettingsSheetControlsTest, TheVolumeIsHeardWhileItIsDraggedAndRestoredByCancel)
{
    settings.enableFocusMusic.set(true);
    timer().start();
    open();
    players.calls.clear();
    auto* slider = find<Slider>("Volume");

    slider->setSliderPosition(50);
    settle();
    EXPECT_TRUE(visibleTexts().contains("50%"));
    slider->setSliderPosition(75);
    QTest::keyClick(sheet.get(), Qt::Key_Escape);

    EXPECT_THAT(players.calls, ElementsAre("1 volume 0.5", "1 volume 0.75", "1 volume 0.25"));
    EXPECT_EQ(settings.musicVolume(), 0.25F);
    EXPECT_EQ(dismissals, 1);
}

TEST_F(SettingsSheetControlsTest, EveryPositionOfTheVolumeShowsAndIsItsPercentage)
{
    open();

    for (int percent = 0; percent <= 100; ++percent) {
        find<Slider>("Volume")->setSliderPosition(percent);
        settle();
        EXPECT_TRUE(visibleTexts().contains(QString::number(percent) + '%')) << percent;
        QTest::keyClick(sheet.get(), Qt::Key_Return);
        EXPECT_EQ(settings.musicVolume(), static_cast<float>(percent / 100.0));
    }
}

TEST_F(SettingsSheetControlsTest, AVolumeJustBelowTheEndIsBroughtThereByAPress)
{
    settings.musicVolume.set(0.999F);
    open();
    auto* slider = find<Slider>("Volume");

    QTest::mouseClick(slider, Qt::LeftButton, {}, {slider->width() - startOf(slider), slider->height() / 2});
    settle();

    EXPECT_TRUE(visibleTexts().contains("100%"));
}

TEST_F(SettingsSheetControlsTest, AVolumeBetweenTwoPositionsIsKept)
{
    settings.musicVolume.set(0.999F);
    open();
    EXPECT_TRUE(visibleTexts().contains("99%"));

    QTest::keyClick(sheet.get(), Qt::Key_Return);

    EXPECT_EQ(settings.musicVolume(), 0.999F);
}

} // namespace velto
