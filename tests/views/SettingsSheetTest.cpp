// SPDX-License-Identifier: MIT
#include "views/SettingsSheetFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace velto {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

// What it shows.

TEST_F(SettingsSheetTest, ShowsItsTextsFromTopToBottom)
{
    open();

    auto labels = sheet->findChildren<QLabel*>();
    labels.removeIf([](auto* label) { return !label->isVisible(); });
    std::ranges::stable_sort(labels, [this](auto* a, auto* b) {
        const auto left = frame(a).center(), right = frame(b).center();
        return std::abs(left.y() - right.y()) > 4 ? left.y() < right.y() : left.x() < right.x();
    });
    QStringList texts;
    for (const auto* label : labels)
        texts << label->text();

    EXPECT_EQ(texts,
        QStringList({"Settings", "Durations", "Focus", "minutes", "Break", "minutes", "Behavior",
            "Automatically start the next phase when timer reaches 0", "Sounds", "Countdown Tick", "Focus End",
            "Break End", "Music", "Volume", "25%"}));
}

TEST_F(SettingsSheetTest, GivesItsControlsTheirSizes)
{
    settings.enableFocusMusic.set(true);
    settings.focusMusicPreset.set(MusicPreset::custom);
    open();

    EXPECT_EQ(sheet->size(), QSize(500, 650));
    EXPECT_EQ(find<EditableNumberField>("Focus")->width(), 50);
    EXPECT_EQ(find<EditableNumberField>("Break")->width(), 50);
    EXPECT_EQ(find<Slider>("Focus")->width(), 300);
    EXPECT_EQ(find<Slider>("Break")->width(), 300);
    EXPECT_EQ(find<PopUpPicker>("Countdown Tick")->width(), 140);
    EXPECT_EQ(find<PopUpPicker>("Break End")->width(), 140);
    EXPECT_EQ(find<PopUpPicker>("Preset")->width(), 300);
    EXPECT_EQ(find<TextField>("Custom URL")->width(), 300);
    EXPECT_EQ(find<Slider>("Volume")->width(), 300);
}

TEST_F(SettingsSheetTest, StandsInTheMiddleOfItsCard)
{
    open();

    for (auto* widget : std::initializer_list<QWidget*>{find<TextLabel>("Settings"), find<TextLabel>("Durations"),
             find<Slider>("Focus"), find<ToggleSwitch>("Auto-Transition"), find<Slider>("Volume")})
        EXPECT_NEAR(middle(widget), 250, 1) << nameOf(widget).toStdString();
}

TEST_F(SettingsSheetTest, TheSwitchesOfTheMusicStandInOneLineAndItsGroupsApart)
{
    settings.enableFocusMusic.set(true);
    open();
    const auto focus = frame(find<ToggleSwitch>("Enable music during focus"));
    const auto breakTime = frame(find<ToggleSwitch>("Enable music during break"));
    const auto source = frame(find<PopUpPicker>("Preset"));

    EXPECT_EQ(focus.left(), breakTime.left());
    EXPECT_EQ(focus.right(), breakTime.right());
    const int within = source.top() - focus.bottom() - 1;
    EXPECT_EQ(within, 12);
    EXPECT_GE(frame(find<TextLabel>("Volume")).top() - breakTime.bottom() - 1, 2 * within);
}

TEST_F(SettingsSheetTest, OffersEverySoundAndEveryPresetInOrder)
{
    open();
    const auto items = [](const PopUpPicker* picker) {
        QStringList texts;
        for (int i = 0; i < picker->count(); ++i)
            texts << picker->itemText(i);
        return texts;
    };

    for (const auto* title : {"Countdown Tick", "Focus End", "Break End"})
        EXPECT_EQ(items(find<PopUpPicker>(title)),
            QStringList({"None", "Basso", "Blow", "Bottle", "Frog", "Funk", "Glass", "Hero", "Morse", "Ping", "Pop",
                "Purr", "Sosumi", "Submarine", "Tink"}));
    for (const int index : {0, 1})
        EXPECT_EQ(items(find<PopUpPicker>("Preset", index)),
            QStringList({"Lo-Fi", "Deep Space Ambient", "Groove Salad", "DEF CON Radio", "Space Station", "Lush",
                "Custom URL"}));
}

TEST_F(SettingsSheetTest, ShowsTheCurrentSettings)
{
    settings.focusMinutes.set(50);
    settings.breakMinutes.set(10);
    settings.autoTransition.set(true);
    settings.countdownSound.set(SoundOption::pop);
    settings.enableBreakMusic.set(true);
    settings.breakMusicPreset.set(MusicPreset::lush);
    settings.musicVolume.set(0.5F);
    open();

    EXPECT_EQ(find<EditableNumberField>("Focus")->text(), "50");
    EXPECT_EQ(find<Slider>("Focus")->value(), 50);
    EXPECT_EQ(find<EditableNumberField>("Break")->text(), "10");
    EXPECT_EQ(find<Slider>("Break")->value(), 10);
    EXPECT_TRUE(find<ToggleSwitch>("Auto-Transition")->isChecked());
    EXPECT_EQ(find<PopUpPicker>("Countdown Tick")->currentText(), "Pop");
    EXPECT_EQ(find<PopUpPicker>("Focus End")->currentText(), "Glass");
    EXPECT_EQ(find<PopUpPicker>("Break End")->currentText(), "Submarine");
    EXPECT_FALSE(find<ToggleSwitch>("Enable music during focus")->isChecked());
    EXPECT_TRUE(find<ToggleSwitch>("Enable music during break")->isChecked());
    EXPECT_EQ(find<PopUpPicker>("Preset", 1)->currentText(), "Lush");
    EXPECT_TRUE(visibleTexts().contains("Sensuous & mellow"));
    EXPECT_EQ(find<Slider>("Volume")->value(), 50);
    EXPECT_TRUE(visibleTexts().contains("50%"));
    EXPECT_THAT(store.writes, IsEmpty());
}

TEST_F(SettingsSheetTest, ScrollsWithAnIndicatorAndFurtherOnALowerScreen)
{
    open();
    EXPECT_TRUE(indicator().isVisible());
    EXPECT_GT(indicator().maximum(), 0);
    const int hidden = indicator().maximum();

    open({500, 400});

    EXPECT_EQ(indicator().maximum(), hidden + 250);
    EXPECT_EQ(frame(find<Button>("Apply")).bottom(), 400 - 1 - 12);
}

// Leaving it.

TEST_F(SettingsSheetTest, ApplyWritesAndThenDismisses)
{
    open();
    QTest::mouseClick(find<Button>("Apply"), Qt::LeftButton);

    EXPECT_EQ(store.writes.size(), 13U);
    EXPECT_EQ(dismissals, 1);
}

TEST_F(SettingsSheetTest, CancelAndEscapeDismissWithoutWriting)
{
    open();
    find<ToggleSwitch>("Auto-Transition")->click();
    QTest::mouseClick(find<Button>("Cancel"), Qt::LeftButton);
    EXPECT_EQ(dismissals, 1);

    type(find<EditableNumberField>("Focus"), "10");
    QTest::keyClick(find<EditableNumberField>("Focus"), Qt::Key_Escape);
    EXPECT_EQ(dismissals, 2);
    EXPECT_THAT(store.writes, IsEmpty());
}

TEST_F(SettingsSheetTest, ACloseFromOutsideIsCancel)
{
    settings.enableFocusMusic.set(true);
    timer().start();
    for (const bool isHidden : {false, true}) {
        open();
        players.calls.clear();
        dismissals = 0;
        find<Slider>("Volume")->setSliderPosition(75);
        sheet->setHidden(isHidden);

        EXPECT_TRUE(sheet->close());

        EXPECT_THAT(players.calls, ElementsAre("1 volume 0.75", "1 volume 0.25"));
        EXPECT_EQ(dismissals, 1);
        EXPECT_THAT(store.writes, IsEmpty());
    }
}

TEST_F(SettingsSheetTest, ReturnInAFieldEndsEditingAndOutsideOfOneApplies)
{
    settings.enableFocusMusic.set(true);
    settings.focusMusicPreset.set(MusicPreset::custom);
    open();
    auto* number = find<EditableNumberField>("Focus");
    auto* url = find<TextField>("Custom URL");

    type(number, "30");
    QTest::keyClick(number, Qt::Key_Return);
    EXPECT_FALSE(number->hasFocus());
    type(url, "http://x");
    QTest::keyClick(url, Qt::Key_Enter);
    EXPECT_FALSE(url->hasFocus());
    EXPECT_EQ(dismissals, 0);

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dismissals, 1);
    EXPECT_EQ(settings.focusMinutes(), 30);
    EXPECT_EQ(settings.focusCustomURL(), "http://x");
}

TEST_F(SettingsSheetTest, ReturnOnASwitchASliderOrAPickerApplies)
{
    open();
    int expected = 0;

    for (auto* control : std::initializer_list<QWidget*>{
             find<ToggleSwitch>("Auto-Transition"), find<Slider>("Focus"), find<PopUpPicker>("Focus End")}) {
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Return);
        EXPECT_EQ(dismissals, ++expected) << nameOf(control).toStdString();
    }
}

TEST_F(SettingsSheetTest, APressBesideTheControlsEndsEditing)
{
    open();
    auto* field = find<EditableNumberField>("Focus");
    type(field, "030");

    QTest::mouseClick(find<TextLabel>("Behavior"), Qt::LeftButton);

    EXPECT_FALSE(field->hasFocus());
    EXPECT_EQ(field->text(), "30");
}

TEST_F(SettingsSheetTest, APressOnAnotherControlEndsEditing)
{
    open();
    auto* field = find<EditableNumberField>("Focus");
    type(field, "030");

    QTest::mouseClick(find<ToggleSwitch>("Auto-Transition"), Qt::LeftButton);

    EXPECT_EQ(field->text(), "30");
    EXPECT_TRUE(find<ToggleSwitch>("Auto-Transition")->isChecked());
}

TEST_F(SettingsSheetTest, ApplyTakesWhatStandsInTheFields)
{
    open();
    find<EditableNumberField>("Focus")->setText("31");

    find<Button>("Apply")->click();

    EXPECT_EQ(settings.focusMinutes(), 31);
}

TEST_F(SettingsSheetTest, HidingAndShowingKeepsTheEdits)
{
    open();
    find<ToggleSwitch>("Auto-Transition")->click();
    type(find<EditableNumberField>("Focus"), "44");
    find<PopUpPicker>("Focus End")->setCurrentText("Hero");

    sheet->hide();
    settings.focusMinutes.set(90);
    sheet->show();
    settle();

    EXPECT_EQ(find<EditableNumberField>("Focus")->text(), "44");
    EXPECT_TRUE(find<ToggleSwitch>("Auto-Transition")->isChecked());
    EXPECT_EQ(find<PopUpPicker>("Focus End")->currentText(), "Hero");
}

TEST_F(SettingsSheetTest, CanGoWhileAFieldHasTheKeyboard)
{
    open();
    type(find<EditableNumberField>("Focus"), "44");

    sheet.reset();

    EXPECT_THAT(store.writes, IsEmpty());
}

// Keyboard and assistive technology.

TEST_F(SettingsSheetTest, TabWalksEveryControlInVisibleOrder)
{
    settings.enableFocusMusic.set(true);
    settings.focusMusicPreset.set(MusicPreset::custom);
    open();
    sheet->setFocus();

    QStringList names;
    for (int i = 0; i < 18; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        auto* focused = QApplication::focusWidget();
        names << nameOf(focused);
        EXPECT_TRUE(QRect(QPoint(), sheet->size()).contains(frame(focused))) << names.last().toStdString();
    }

    EXPECT_EQ(names,
        QStringList({"Focus", "Focus", "Break", "Break", "Auto-Transition", "Countdown Tick", "Play Countdown Tick",
            "Focus End", "Play Focus End", "Break End", "Play Break End", "Enable music during focus", "Preset",
            "Custom URL", "Enable music during break", "Volume", "Cancel", "Apply"}));
}

TEST_F(SettingsSheetTest, EveryControlHasAnAccessibleName)
{
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(true);
    open();

    for (auto* widget : sheet->findChildren<QWidget*>()) {
        if (widget->window() == sheet.get() && widget->focusPolicy() & Qt::TabFocus) {
            EXPECT_FALSE(nameOf(widget).isEmpty()) << widget->metaObject()->className();
        }
    }
}

TEST_F(SettingsSheetTest, ThePickersOfSoundsSayWhatIsChosenAndWhatFor)
{
    open();

    for (const auto& [title, chosen] :
        {std::pair{"Countdown Tick", "Tink"}, {"Focus End", "Glass"}, {"Break End", "Submarine"}}) {
        auto* picker = QAccessible::queryAccessibleInterface(find<PopUpPicker>(title));
        EXPECT_EQ(picker->text(QAccessible::Name), chosen);
        EXPECT_EQ(picker->text(QAccessible::Description), title);
        // Screen readers speak a label in place of the name.
        EXPECT_TRUE(picker->relations(QAccessible::Label).isEmpty());
    }
}

TEST_F(SettingsSheetTest, IsNotRedrawnWhileNothingChanges)
{
    open();

    timer().start();
    runLoop.advance(std::chrono::seconds(3));

    EXPECT_EQ(runLoop.waitingWorks(), 0U);
}

} // namespace velto
