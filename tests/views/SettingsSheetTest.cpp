// SPDX-License-Identifier: MIT
#include "settings_form/SettingsSheet.h"

#include "core/PomodoroTimer.h"
#include "settings/AppSettings.h"
#include "settings_form/EditableNumberField.h"
#include "style/Button.h"
#include "style/PopUpPicker.h"
#include "style/ScrollIndicator.h"
#include "style/Slider.h"
#include "style/TextLabel.h"
#include "style/ToggleSwitch.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakeRunLoop.h"
#include "support/FakeSoundLibrary.h"
#include "support/FakeStreamPlayerFactory.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <tuple>
#include <vector>

namespace velto {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

} // namespace

class SettingsSheetTest : public testing::Test {
protected:
    FakeKeyValueStore store;
    FakeSoundLibrary sounds;
    FakeStreamPlayerFactory players;
    FakeRunLoop runLoop;
    AppSettings settings{store, sounds};
    PomodoroTimer timer{settings, runLoop, players};
    std::unique_ptr<SettingsSheet> sheet;
    int dismissals = 0;

    ~SettingsSheetTest() override { QApplication::setFont(m_font); }

    void open(QSize size = SettingsSheet::preferredSize)
    {
        sheet = std::make_unique<SettingsSheet>(settings, timer, runLoop, [this] { ++dismissals; });
        sheet->resize(size);
        sheet->show();
        sheet->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet.get()));
        settle();
        store.writes.clear();
    }

    /// Lets what has changed be shown and laid out.
    void settle()
    {
        runLoop.runTurns();
        // One layout asks for the next, from the inside out.
        for (int depth = 0; depth < 8; ++depth)
            QCoreApplication::processEvents();
    }

    /// A picker is named by its value and described by its title.
    static QString nameOf(QWidget* control)
    {
        return qobject_cast<QComboBox*>(control)
            ? control->accessibleDescription()
            : QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
    }

    /// The `index`th control of that class with that accessible name.
    template <class Control>
    Control* find(const QString& name, int index = 0)
    {
        for (auto* control : sheet->findChildren<Control*>()) {
            if (nameOf(control) == name && index-- == 0)
                return control;
        }
        ADD_FAILURE() << "no " << Control::staticMetaObject.className() << " named " << name.toStdString();
        std::abort();
    }

    QRect frame(const QWidget* widget) const { return {widget->mapTo(sheet.get(), QPoint()), widget->size()}; }
    int middle(const QWidget* widget) const { return frame(widget).center().x(); }

    QStringList visibleTexts() const
    {
        QStringList texts;
        for (auto* label : sheet->findChildren<QLabel*>())
            if (label->isVisible())
                texts << label->text();
        return texts;
    }

    /// Where the knob's middle is with the slider at its lowest value.
    static int startOf(const Slider* slider) { return slider->height() / 2; }

    QScrollBar& indicator() { return *sheet->findChild<QScrollArea*>()->verticalScrollBar(); }

    void type(QWidget* field, const QString& text)
    {
        field->setFocus();
        static_cast<QLineEdit*>(field)->selectAll();
        QTest::keyClicks(field, text);
    }

private:
    QFont m_font = QApplication::font();
};

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

TEST_F(SettingsSheetTest, NothingIsClippedWhenTheUsersFontIsLarge)
{
    settings.enableFocusMusic.set(true);
    settings.enableBreakMusic.set(true);
    for (const double scale : {1.0, 1.25}) {
        auto font = QApplication::font();
        font.setPointSizeF(10 * scale);
        QApplication::setFont(font);
        open();

        for (const auto* label : sheet->findChildren<QLabel*>()) {
            if (label->isVisible()) {
                EXPECT_GE(label->width(), label->wordWrap() ? 1 : label->sizeHint().width())
                    << label->text().toStdString();
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
            }
        }
        for (const auto* button : sheet->findChildren<QAbstractButton*>())
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        for (const auto* picker : sheet->findChildren<PopUpPicker*>())
            EXPECT_GE(picker->width(), picker->sizeHint().width()) << picker->accessibleDescription().toStdString();
        const auto* number = find<EditableNumberField>("Focus");
        EXPECT_GE(number->width() - 16, number->fontMetrics().horizontalAdvance("120"));
    }
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

// Durations.

TEST_F(SettingsSheetTest, TypingTenMinutesIsAppliedThoughTheSliderEndsAtTwentyFive)
{
    open();

    type(find<EditableNumberField>("Focus"), "10");
    QTest::mouseClick(find<Button>("Apply"), Qt::LeftButton);

    EXPECT_EQ(settings.focusMinutes(), 10);
    EXPECT_EQ(timer.focusDuration(), 600);
    EXPECT_EQ(dismissals, 1);
}

TEST_F(SettingsSheetTest, ATypedNumberMovesTheSliderAsFarAsItGoes)
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

TEST_F(SettingsSheetTest, TheSliderReplacesAHalfTypedNumber)
{
    open();
    auto* field = find<EditableNumberField>("Focus");
    type(field, "4");

    find<Slider>("Focus")->triggerAction(QAbstractSlider::SliderSingleStepAdd);

    EXPECT_EQ(field->text(), "26");
    sheet->setFocus();
    EXPECT_EQ(field->text(), "26");
}

TEST_F(SettingsSheetTest, APressOnTheSliderReplacesAHalfTypedNumber)
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

TEST_F(SettingsSheetTest, TheHandBringsAValueFromBeyondTheSliderToItsEnd)
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

TEST_F(SettingsSheetTest, AssistiveTechnologyMovesASliderInTheUnitOfItsValue)
{
    settings.musicVolume.set(0.999F);
    settings.focusMinutes.set(999);
    open();
    auto* volume = QAccessible::queryAccessibleInterface(find<Slider>("Volume"))->valueInterface();
    auto* focus = QAccessible::queryAccessibleInterface(find<Slider>("Focus"))->valueInterface();

    EXPECT_EQ(volume->minimumValue().toDouble(), 0);
    EXPECT_EQ(volume->maximumValue().toDouble(), 1);
    EXPECT_EQ(volume->minimumStepSize().toDouble(), 0.01);
    EXPECT_EQ(volume->currentValue().toDouble(), 1);
    EXPECT_EQ(focus->minimumValue().toDouble(), 25);
    EXPECT_EQ(focus->maximumValue().toDouble(), 120);
    EXPECT_EQ(focus->minimumStepSize().toDouble(), 1);

    volume->setCurrentValue(0.53);
    focus->setCurrentValue(120.0);
    settle();

    EXPECT_EQ(volume->currentValue().toDouble(), 0.53);
    EXPECT_TRUE(visibleTexts().contains("53%"));
    EXPECT_EQ(find<EditableNumberField>("Focus")->text(), "120");
    QTest::keyClick(sheet.get(), Qt::Key_Return);
    EXPECT_EQ(settings.musicVolume(), 0.53F);
    EXPECT_EQ(settings.focusMinutes(), 120);
}

TEST_F(SettingsSheetTest, DraggingTheSliderShowsTheNumberAtOnce)
{
    open();
    auto* slider = find<Slider>("Break");

    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() / 2, slider->height() / 2});
    QTest::mouseMove(slider, {slider->width() - 1, slider->height() / 2});

    EXPECT_EQ(find<EditableNumberField>("Break")->text(), "30");
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() - 1, slider->height() / 2});
}

TEST_F(SettingsSheetTest, SlidersMoveWithTheKeyboard)
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

TEST_F(SettingsSheetTest, ApplyIsDisabledWhileADurationIsBelowOne)
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

TEST_F(SettingsSheetTest, ThePlayButtonPlaysWhatIsChosenInItsRow)
{
    open();
    find<PopUpPicker>("Focus End")->setCurrentText("Hero");
    settle();

    QTest::mouseClick(find<Button>("Play Focus End"), Qt::LeftButton);
    QTest::mouseClick(find<Button>("Play Countdown Tick"), Qt::LeftButton);

    EXPECT_THAT(sounds.played, ElementsAre("Hero", "Tink"));
    EXPECT_THAT(store.writes, IsEmpty());
}

TEST_F(SettingsSheetTest, ThePlayButtonBesideNoneIsDisabled)
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

TEST_F(SettingsSheetTest, ThePickerOfAPhaseComesAndGoesWithItsSwitch)
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

TEST_F(SettingsSheetTest, TheFieldForAnAddressReplacesTheDescriptionWithoutMovingAnything)
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

TEST_F(SettingsSheetTest, ASwitchStaysUnderThePointerWhenThePageGetsShorter)
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

TEST_F(SettingsSheetTest, TheVolumeIsHeardWhileItIsDraggedAndRestoredByCancel)
{
    settings.enableFocusMusic.set(true);
    timer.start();
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

TEST_F(SettingsSheetTest, EveryPositionOfTheVolumeShowsAndIsItsPercentage)
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

TEST_F(SettingsSheetTest, AVolumeJustBelowTheEndIsBroughtThereByAPress)
{
    settings.musicVolume.set(0.999F);
    open();
    auto* slider = find<Slider>("Volume");

    QTest::mouseClick(slider, Qt::LeftButton, {}, {slider->width() - startOf(slider), slider->height() / 2});
    settle();

    EXPECT_TRUE(visibleTexts().contains("100%"));
}

TEST_F(SettingsSheetTest, AVolumeBetweenTwoPositionsIsKept)
{
    settings.musicVolume.set(0.999F);
    open();
    EXPECT_TRUE(visibleTexts().contains("99%"));

    QTest::keyClick(sheet.get(), Qt::Key_Return);

    EXPECT_EQ(settings.musicVolume(), 0.999F);
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
    timer.start();
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

TEST_F(SettingsSheetTest, ThePickersOfSoundsAreLabelledByTheirTitles)
{
    open();

    for (const auto* title : {"Countdown Tick", "Focus End", "Break End"}) {
        const auto labels
            = QAccessible::queryAccessibleInterface(find<PopUpPicker>(title))->relations(QAccessible::Label);
        ASSERT_EQ(labels.size(), 1);
        EXPECT_EQ(labels.front().first->text(QAccessible::Name), title);
    }
}

TEST_F(SettingsSheetTest, IsNotRedrawnWhileNothingChanges)
{
    open();

    timer.start();
    runLoop.advance(std::chrono::seconds(3));

    EXPECT_EQ(runLoop.waitingWorks(), 0U);
}

} // namespace velto
