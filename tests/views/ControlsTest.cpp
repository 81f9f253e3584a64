// SPDX-License-Identifier: MIT
#include "desktop/session/Appearance.h"
#include "style/Button.h"
#include "style/PopUpPicker.h"
#include "style/Slider.h"
#include "style/Stack.h"
#include "style/TextField.h"
#include "style/TextLabel.h"
#include "style/ToggleSwitch.h"
#include "views/Contrast.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>
#include <QWheelEvent>

#include <vector>

namespace velto {

namespace {

class ControlsTest : public testing::Test {
protected:
    ControlsTest()
    {
        window.setLayout(column({.spacing = 12, .alignment = {}}, button, toggle, slider, picker, field));
        picker->addItems({"None", "Basso", "Blow"});
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static QAccessibleInterface& accessible(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }

    QWidget window;
    Button* button = new Button(ButtonKind::prominent, "Start", "play.fill", ColorName::green);
    ToggleSwitch* toggle = new ToggleSwitch("Auto-Transition");
    Slider* slider = new Slider(25, 120);
    PopUpPicker* picker = new PopUpPicker("Preset");
    TextField* field = new TextField("Custom URL");
};

TEST_F(ControlsTest, TabGoesThroughAllInOrder)
{
    button->setFocus();

    for (const auto* next : QWidgetList{toggle, slider, picker, field}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
}

TEST_F(ControlsTest, AButtonIsPressedWithSpaceReturnAndEnter)
{
    QSignalSpy clicks(button, &QAbstractButton::clicked);
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(button, key);

    EXPECT_EQ(clicks.count(), 3);
}

TEST_F(ControlsTest, ADisabledButtonIgnoresTheKeyboard)
{
    QSignalSpy clicks(button, &QAbstractButton::clicked);
    button->setEnabled(false);
    QTest::keyClick(button, Qt::Key_Return);

    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ControlsTest, ASwitchFlipsWithSpaceAndAPressOnItsTitle)
{
    QTest::keyClick(toggle, Qt::Key_Space);
    EXPECT_TRUE(toggle->isChecked());

    QTest::mouseClick(toggle, Qt::LeftButton, {}, {3, toggle->height() / 2});
    EXPECT_FALSE(toggle->isChecked());
}

TEST_F(ControlsTest, ASliderGoesWhereItsTrackIsPressedAndFollowsTheDrag)
{
    const int middle = slider->height() / 2;
    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() - 1, middle});
    EXPECT_EQ(slider->value(), 120);
    EXPECT_TRUE(slider->isSliderDown());

    QTest::mouseMove(slider, {slider->width() / 2, middle});
    EXPECT_NEAR(slider->value(), 72, 2);

    QTest::mouseRelease(slider, Qt::LeftButton, {}, {0, middle});
    EXPECT_FALSE(slider->isSliderDown());
}

TEST_F(ControlsTest, PressingTheKnobDoesNotMoveIt)
{
    slider->setValue(25);
    const QPoint besideItsMiddle(17, slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, {}, besideItsMiddle);
    QTest::mouseMove(slider, besideItsMiddle + QPoint(0, 3));

    EXPECT_EQ(slider->value(), 25);
}

TEST_F(ControlsTest, TheTrackOfASliderReachesFromEdgeToEdgeAndIsLighterInside)
{
    slider->setValue(70);
    const auto picture = slider->grab().toImage();
    const auto ratio = picture.devicePixelRatio();
    const auto at = [&](double x, double y) { return picture.pixelColor(QPointF(x * ratio, y * ratio).toPoint()); };
    const double middle = slider->height() / 2.0;
    const auto background = at(slider->width() / 2.0, 1);

    EXPECT_NE(at(1, middle), background);
    EXPECT_NE(at(slider->width() - 2, middle), background);
    EXPECT_EQ(at(slider->width() - 20, middle), color(ColorName::control, *slider));
}

TEST_F(ControlsTest, TheCaretIsNotDrawnBesideSelectedText)
{
    const auto caret = [this] { return field->style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, field); };
    field->setText("25");
    EXPECT_GT(caret(), 0);

    field->selectAll();
    EXPECT_EQ(caret(), 0);
}

TEST_F(ControlsTest, ASliderMovesByOneWithTheArrowKeys)
{
    slider->setValue(50);
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(slider->value(), 51);

    QTest::keyClick(slider, Qt::Key_Left);
    EXPECT_EQ(slider->value(), 50);
}

TEST_F(ControlsTest, TheWheelIsLeftToWhatScrolls)
{
    slider->setValue(50);
    picker->setCurrentIndex(1);
    for (auto* widget : QWidgetList{slider, picker}) {
        QWheelEvent event({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
        EXPECT_FALSE(event.isAccepted());
    }

    EXPECT_EQ(slider->value(), 50);
    EXPECT_EQ(picker->currentIndex(), 1);
}

/// The open list of `picker` as it is drawn.
QImage listOf(PopUpPicker& picker)
{
    return picker.view()->window()->grab().toImage();
}

TEST_F(ControlsTest, TheListOfAPickerLiesOverItWithWhatIsChosen)
{
    for (int chosen = 0; chosen < picker->count(); ++chosen) {
        picker->setCurrentIndex(chosen);
        picker->showPopup();
        const auto* list = picker->view();
        const auto row = list->visualRect(list->model()->index(chosen, 0));

        EXPECT_EQ(list->viewport()->mapToGlobal(row.center()).y(), picker->mapToGlobal(picker->rect().center()).y());
        EXPECT_EQ(list->window()->width(), picker->width());
        picker->hidePopup();
    }
}

TEST_F(ControlsTest, TheListOfAPickerStaysOnTheScreenAndShowsAllThatFits)
{
    const auto screen = window.screen()->availableGeometry();
    for (int i = 0; i < 8; ++i)
        picker->addItem(QString::number(i));
    const int last = picker->count() - 1;
    for (const auto& [y, chosen] : {std::pair{screen.top(), last}, {screen.bottom() - window.height(), 0}}) {
        window.move(screen.left(), y);
        picker->setCurrentIndex(chosen);
        picker->showPopup();

        const auto* list = picker->view();
        EXPECT_TRUE(screen.contains(list->window()->geometry())) << chosen;
        for (int i = 0; i < picker->count(); ++i)
            EXPECT_TRUE(list->viewport()->rect().contains(list->visualRect(list->model()->index(i, 0)))) << i;
        picker->hidePopup();
    }
}

TEST_F(ControlsTest, AListThatIsTooLongIsAsHighAsTheScreenAndHasAScrollBar)
{
    for (int i = 0; i < 60; ++i)
        picker->addItem(QString::number(i));
    picker->setCurrentIndex(picker->count() - 1);
    picker->showPopup();

    const auto* list = picker->view();
    EXPECT_TRUE(window.screen()->availableGeometry().contains(list->window()->geometry()));
    EXPECT_TRUE(list->viewport()->rect().contains(list->visualRect(list->currentIndex())));
    EXPECT_TRUE(list->verticalScrollBar()->isVisible());
    for (const auto* part : list->window()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(part == list || part->isHidden() || part->height() == 0);
}

TEST_F(ControlsTest, TheListOfAPickerIsARoundCardInBothSchemes)
{
    const auto before = QApplication::palette();
    for (const auto theme : {Theme::light, Theme::dark}) {
        QApplication::setPalette(paletteFor(theme));
        picker->showPopup();
        const auto image = listOf(*picker);

        for (const QPoint corner : {QPoint(0, 0), QPoint(image.width() - 1, image.height() - 1)})
            EXPECT_EQ(image.pixelColor(corner).alpha(), 0);
        EXPECT_EQ(image.pixelColor(image.width() / 2, 2).alpha(), 255);
        picker->hidePopup();
    }
    QApplication::setPalette(before);
}

TEST_F(ControlsTest, TheListOfAPickerIsCutToItsShapeWhereItsWindowIs)
{
    picker->showPopup();
    EXPECT_TRUE(picker->view()->window()->mask().isEmpty());
    picker->hidePopup();

    window.setMask(QRegion(window.rect()));
    picker->hide();
    picker->show();
    picker->showPopup();
    const auto mask = picker->view()->window()->mask();
    EXPECT_FALSE(mask.isEmpty());
    EXPECT_FALSE(mask.contains(QPoint(0, 0)));
    EXPECT_EQ(listOf(*picker).pixelColor(0, 0).alpha(), 255);
}

TEST_F(ControlsTest, TheListOfAPickerMarksTheChoiceAndHighlightsWhatTheKeysReach)
{
    const auto accent = color(ColorName::accent, window);
    const auto rowHas = [this](int row, const QColor& wanted) {
        const auto* list = picker->view();
        const auto image = list->viewport()->grab(list->visualRect(list->model()->index(row, 0))).toImage();
        return image.pixelColor(image.width() - 6, image.height() / 2) == wanted;
    };
    picker->setCurrentIndex(0);
    picker->showPopup();
    EXPECT_TRUE(rowHas(0, accent));

    QTest::keyClick(picker->view(), Qt::Key_Down);
    EXPECT_FALSE(rowHas(0, accent));
    EXPECT_TRUE(rowHas(1, accent));
    EXPECT_EQ(picker->currentIndex(), 0);

    QTest::keyClick(picker->view(), Qt::Key_Escape);
    EXPECT_FALSE(picker->view()->isVisible());
    EXPECT_EQ(picker->currentIndex(), 0);

    picker->showPopup();
    QTest::keyClick(picker->view(), 'b');
    QTest::keyClick(picker->view(), Qt::Key_Return);
    EXPECT_EQ(picker->currentText(), "Basso");
}

TEST_F(ControlsTest, EachSaysItsNameRoleAndState)
{
    EXPECT_EQ(accessible(button).text(QAccessible::Name), "Start");
    EXPECT_EQ(accessible(button).role(), QAccessible::Button);
    EXPECT_EQ(accessible(toggle).text(QAccessible::Name), "Auto-Transition");
    EXPECT_EQ(accessible(toggle).role(), QAccessible::CheckBox);
    EXPECT_FALSE(accessible(toggle).state().checked);
    toggle->setChecked(true);
    EXPECT_TRUE(accessible(toggle).state().checked);
    EXPECT_EQ(accessible(slider).role(), QAccessible::Slider);
    slider->setValue(42);
    EXPECT_EQ(accessible(slider).valueInterface()->currentValue().toInt(), 42);
    EXPECT_EQ(accessible(picker).text(QAccessible::Name), "None");
    EXPECT_EQ(accessible(picker).text(QAccessible::Description), "Preset");
    EXPECT_EQ(accessible(picker).role(), QAccessible::ComboBox);
    EXPECT_EQ(accessible(field).text(QAccessible::Name), "Custom URL");
    EXPECT_EQ(accessible(field).role(), QAccessible::EditableText);
}

/// The square points that differ at a contrast of 3 and more.
double clearlyChanged(const QImage& before, const QImage& after)
{
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            changed += contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= 3;
    return changed / (before.devicePixelRatio() * before.devicePixelRatio());
}

TEST_F(ControlsTest, TheFocusOfTheKeyboardStandsOutInEveryTheme)
{
    auto* isOn = new ToggleSwitch("Enable music during focus");
    isOn->setChecked(true);
    const std::vector<std::pair<const char*, QWidget*>> controls{
        {"start", button},
        {"pause", new Button(ButtonKind::prominent, "Pause", "pause.fill", ColorName::orange)},
        {"apply", new Button(ButtonKind::prominent, "Apply")},
        {"bordered button", new Button(ButtonKind::bordered, "Cancel")},
        {"destructive button", new Button(ButtonKind::destructive, "Reset")},
        {"play", new Button(ButtonKind::borderless, {}, "play.circle.fill")},
        {"link", new Button(ButtonKind::link, "Website")},
        {"switch that is off", toggle},
        {"switch that is on", isOn},
        {"slider", slider},
        {"picker", picker},
        {"field", field},
    };
    for (const auto& [name, control] : controls)
        window.layout()->addWidget(control);
    QApplication::processEvents();
    for (const auto theme : {Theme::light, Theme::dark, Theme::lightHighContrast, Theme::darkHighContrast}) {
        window.setPalette(paletteFor(theme));
        for (const auto& [name, control] : controls) {
            window.setFocus();
            const auto without = window.grab(control->geometry()).toImage();
            control->setFocus(Qt::TabFocusReason);
            window.setAttribute(Qt::WA_KeyboardFocusChange);

            // A ring of two points round the knob of the slider, the smallest, has some 90.
            EXPECT_GE(clearlyChanged(without, window.grab(control->geometry()).toImage()), 60)
                << name << " in theme " << static_cast<int>(theme);
        }
    }
}

TEST_F(ControlsTest, TextAndControlsGrowWithTheDesktopsFontWhileShown)
{
    const Appearance appearance;
    const auto before = QApplication::font();
    const int height = button->sizeHint().height();
    TextLabel label("Volume");
    QFont large = before;
    large.setPointSizeF(12.5);
    QApplication::setFont(large);

    EXPECT_TRUE(QTest::qWaitFor([&] { return label.font().pixelSize() == 16; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->font().pixelSize() == 16; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->sizeHint().height() > height; }));

    QApplication::setFont(before);
}

TEST_F(ControlsTest, ALabelFollowsTheThemeWhileShown)
{
    const auto before = QApplication::palette();
    TextLabel label("minutes", TextStyle::body, ColorName::secondaryLabel);
    for (const auto theme : {Theme::dark, Theme::light}) {
        QApplication::setPalette(paletteFor(theme));
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return label.palette().color(QPalette::WindowText) == color(ColorName::secondaryLabel, theme); }));
    }

    QApplication::setPalette(before);
}

} // namespace

} // namespace velto
