// SPDX-License-Identifier: MIT
#include "settings_form/EditableNumberField.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace velto {

namespace {

using namespace Qt::StringLiterals;

struct Owner : ObservableObject {
    Published<std::int64_t> value{*this, 25};
};

struct Input {
    const char* name;
    QString entered;
    QString whileTyping;
    std::int64_t value;
    QString afterEditing;
};

void PrintTo(const Input& input, std::ostream* out)
{
    *out << input.name;
}

const auto inputs = std::vector<Input>{
    {"Number", "10", "10", 10, "10"},
    {"OneDigit", "7", "7", 7, "7"},
    {"One", "1", "1", 1, "1"},
    {"Zero", "0", "0", 25, "25"},
    {"Empty", "", "", 25, "25"},
    {"AboveTheSlider", "999", "999", 999, "999"},
    {"LeadingZeros", "007", "007", 7, "7"},
    {"LargestOfAll", "153722867280912930", "153722867280912930", 153722867280912930, "153722867280912930"},
    {"OneTooLarge", "153722867280912931", "153722867280912931", 25, "25"},
    {"TwentyFiveDigits", "1234567890123456789012345", "1234567890123456789012345", 25, "25"},
    {"DigitsAndALetter", "12a", "12", 12, "12"},
    {"LettersOnly", "abc", "", 25, "25"},
    {"Sentence", "about 45 minutes", "45", 45, "45"},
    {"Minus", "-5", "5", 5, "5"},
    {"Plus", "+5", "5", 5, "5"},
    {"Spaces", " 3 0 ", "30", 30, "30"},
    {"DecimalPoint", "1.5", "15", 15, "15"},
    {"Exponent", "1e3", "13", 13, "13"},
    {"Picture",
        u"\U0001F345"
        "10"_s,
        "10", 10, "10"},
    {"ArabicDigit", u"٣"_s, u"٣"_s, 25, "25"},
    {"DevanagariDigit", u"५"_s, u"५"_s, 25, "25"},
    {"ThaiDigitAfterAsciiOnes", u"1๕"_s, u"1๕"_s, 25, "25"},
    {"FullWidthDigit", u"７"_s, u"７"_s, 25, "25"},
    {"MathematicalDigit", u"\U0001D7D7"_s, u"\U0001D7D7"_s, 25, "25"},
    {"Fraction", u"½"_s, u"½"_s, 25, "25"},
    {"RomanNumeral", u"Ⅻ"_s, u"Ⅻ"_s, 25, "25"},
    {"CircledDigit", u"①"_s, u"①"_s, 25, "25"},
    {"Superscript", u"3²"_s, u"3²"_s, 25, "25"},
    {"ChineseNumberWord", u"三"_s, "", 25, "25"},
    {"OtherScriptAndLetters", u"x٣y"_s, u"٣"_s, 25, "25"},
};

class Window : public QWidget {
public:
    Window()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&m_field);
        layout->addWidget(&m_other);
        show();
        activateWindow();
    }

    Owner owner;
    EditableNumberField& field() { return m_field; }
    QLineEdit& other() { return m_other; }

private:
    EditableNumberField m_field{"Focus", owner.value};
    QLineEdit m_other;
};

} // namespace

class EditableNumberFieldTest : public testing::TestWithParam<Input> {
protected:
    Window window;
    EditableNumberField& field = window.field();

    void SetUp() override
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
        field.selectAll();
    }

    /// Each character as a key press of its own.
    void type(const QString& text)
    {
        if (text.isEmpty())
            QTest::keyClick(&field, Qt::Key_Delete);
        for (const char32_t character : text.toStdU32String()) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&character, 1));
            QApplication::sendEvent(&field, &press);
        }
    }
};

TEST_P(EditableNumberFieldTest, KeepsNumericCharactersWhileTypingAndTakesTheNumberOnLeaving)
{
    type(GetParam().entered);
    EXPECT_EQ(field.text(), GetParam().whileTyping);
    EXPECT_EQ(window.owner.value(), 25);

    window.other().setFocus();

    EXPECT_EQ(field.text(), GetParam().afterEditing);
    EXPECT_EQ(window.owner.value(), GetParam().value);
}

TEST_P(EditableNumberFieldTest, TreatsAPasteLikeTyping)
{
    QApplication::clipboard()->setText(GetParam().entered);
    QTest::keyClick(&field, Qt::Key_Delete);

    field.paste();

    EXPECT_EQ(field.text(), GetParam().whileTyping);
}

TEST_P(EditableNumberFieldTest, ReturnTakesTheNumberAsLeavingDoes)
{
    type(GetParam().entered);

    QTest::keyClick(&field, Qt::Key_Return);

    EXPECT_FALSE(field.hasFocus());
    EXPECT_EQ(field.text(), GetParam().afterEditing);
    EXPECT_EQ(window.owner.value(), GetParam().value);
}

TEST_P(EditableNumberFieldTest, ANewValueFromElsewhereReplacesWhatWasTyped)
{
    type(GetParam().entered);

    window.owner.value.set(80);

    EXPECT_EQ(field.text(), "80");
    window.other().setFocus();
    EXPECT_EQ(window.owner.value(), 80);
}

INSTANTIATE_TEST_SUITE_P(
    Table, EditableNumberFieldTest, testing::ValuesIn(inputs), [](const auto& each) { return each.param.name; });

class EditableNumberFieldCursorTest : public EditableNumberFieldTest { };

TEST_P(EditableNumberFieldCursorTest, StaysWhereItWasWhenACharacterIsDropped)
{
    type("123");
    field.setCursorPosition(1);

    type("a");
    EXPECT_EQ(field.cursorPosition(), 1);

    type("9");
    EXPECT_EQ(field.text(), "1923");
    EXPECT_EQ(field.cursorPosition(), 2);
}

TEST(EditableNumberFieldWidthTest, FourDigitsAreWholeInTheLargestText)
{
    Owner owner;
    owner.value.set(9999);
    EditableNumberField field("Focus", owner.value);
    auto font = field.font();
    font.setPixelSize(16);
    field.setFont(font);
    field.setFixedWidth(50);

    // What is too long follows the cursor.
    field.setCursorPosition(0);
    const auto beginning = field.grab().toImage();
    field.setCursorPosition(4);
    EXPECT_EQ(field.grab().toImage(), beginning);
}

TEST_P(EditableNumberFieldCursorTest, ItsOwnMenuDoesNotEndEditing)
{
    type("12");

    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(&field, &toMenu);
    EXPECT_EQ(window.owner.value(), 25);

    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&field, &away);
    EXPECT_EQ(window.owner.value(), 12);
}

INSTANTIATE_TEST_SUITE_P(Once, EditableNumberFieldCursorTest, testing::Values(inputs.front()));

} // namespace velto
