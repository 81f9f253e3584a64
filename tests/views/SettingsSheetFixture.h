// SPDX-License-Identifier: MIT
#pragma once

#include "settings_form/EditableNumberField.h"
#include "settings_form/SettingsSheet.h"
#include "style/Button.h"
#include "style/PopUpPicker.h"
#include "style/Slider.h"
#include "style/TextLabel.h"
#include "style/ToggleSwitch.h"
#include "support/World.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

namespace velto {

/// The settings form over a timer in virtual time.
class SettingsSheetTest : public testing::Test, protected World {
protected:
    std::unique_ptr<SettingsSheet> sheet;
    int dismissals = 0;

    ~SettingsSheetTest() override { QApplication::setFont(m_font); }

    void open(QSize size = SettingsSheet::preferredSize)
    {
        sheet = std::make_unique<SettingsSheet>(settings, timer(), runLoop, [this] { ++dismissals; });
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

} // namespace velto
