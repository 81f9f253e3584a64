// SPDX-License-Identifier: MIT
#include "settings_form/NumberText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace velto {

namespace {

/// Digits and some numbers of other scripts, as Unicode knows them.
bool isNumeric(char32_t c)
{
    return (c >= U'0' && c <= U'9') || std::u32string_view(U"٣५๕７½Ⅻ①²𝟗").find(c) != std::u32string_view::npos;
}

struct Owner : ObservableObject {
    Published<std::int64_t> value{*this, 25};
};

struct Input {
    const char* name;
    std::u32string entered;      ///< The whole text, as typed or pasted over what was there.
    std::u32string whileTyping;  ///< What stays in the box.
    std::int64_t value;          ///< After editing has ended.
    std::u32string afterLeaving; ///< What the box shows then.
};

void PrintTo(const Input& input, std::ostream* out)
{
    *out << input.name;
}

const auto inputs = std::vector<Input>{
    // Whole numbers.
    {"OneDigit", U"7", U"7", 7, U"7"},
    {"TwoDigits", U"12", U"12", 12, U"12"},
    {"TheSameNumber", U"25", U"25", 25, U"25"},
    {"One", U"1", U"1", 1, U"1"},
    {"BelowTheSlider", U"10", U"10", 10, U"10"},
    {"AboveTheSlider", U"999", U"999", 999, U"999"},
    {"FarAboveTheSlider", U"1000000", U"1000000", 1000000, U"1000000"},
    {"LeadingZeros", U"007", U"007", 7, U"7"},
    {"LeadingZerosOfALargeNumber", U"0000000000000000000000000000042", U"0000000000000000000000000000042", 42, U"42"},
    {"TrailingZeros", U"700", U"700", 700, U"700"},
    {"LargestOfAll", U"153722867280912930", U"153722867280912930", 153722867280912930, U"153722867280912930"},
    // Not taken.
    {"Empty", U"", U"", 25, U"25"},
    {"Zero", U"0", U"0", 25, U"25"},
    {"ManyZeros", U"0000", U"0000", 25, U"25"},
    {"OneTooLargeInSeconds", U"153722867280912931", U"153722867280912931", 25, U"25"},
    {"LargestOf64Bits", U"9223372036854775807", U"9223372036854775807", 25, U"25"},
    {"OneTooLargeFor64Bits", U"9223372036854775808", U"9223372036854775808", 25, U"25"},
    {"TwentyFiveDigits", U"1234567890123456789012345", U"1234567890123456789012345", 25, U"25"},
    {"AThousandDigits", std::u32string(1000, U'9'), std::u32string(1000, U'9'), 25, U"25"},
    // Letters and signs are dropped at once.
    {"DigitsAndALetter", U"12a", U"12", 12, U"12"},
    {"LetterBeforeDigits", U"a12", U"12", 12, U"12"},
    {"LetterBetweenDigits", U"1a2", U"12", 12, U"12"},
    {"LettersOnly", U"abc", U"", 25, U"25"},
    {"PastedWords", U"about 45 minutes", U"45", 45, U"45"},
    {"PastedLines", U"4\n5", U"45", 45, U"45"},
    {"Minus", U"-5", U"5", 5, U"5"},
    {"Plus", U"+5", U"5", 5, U"5"},
    {"MinusAlone", U"-", U"", 25, U"25"},
    {"PlusAndMinus", U"+-5", U"5", 5, U"5"},
    {"RealMinusSign", U"−5", U"5", 5, U"5"},
    {"Spaces", U" 3 0 ", U"30", 30, U"30"},
    {"SpaceAlone", U" ", U"", 25, U"25"},
    {"DecimalPoint", U"1.5", U"15", 15, U"15"},
    {"DecimalComma", U"1,5", U"15", 15, U"15"},
    {"Grouped", U"1'000", U"1000", 1000, U"1000"},
    {"Exponent", U"1e3", U"13", 13, U"13"},
    {"Hexadecimal", U"0x1F", U"01", 1, U"1"},
    {"Underscore", U"1_000", U"1000", 1000, U"1000"},
    {"Picture", U"🍅10", U"10", 10, U"10"},
    {"AccentOverADigit", U"5\u0301", U"5", 5, U"5"},
    {"NullCharacter", std::u32string(U"1\0002", 3), U"12", 12, U"12"},
    // Numbers of other scripts stay while typing and are not taken.
    {"ArabicDigit", U"٣", U"٣", 25, U"25"},
    {"DevanagariDigit", U"५", U"५", 25, U"25"},
    {"ThaiDigitAfterAsciiOnes", U"1๕", U"1๕", 25, U"25"},
    {"FullWidthDigit", U"７", U"７", 25, U"25"},
    {"MathematicalDigit", U"𝟗", U"𝟗", 25, U"25"},
    {"Fraction", U"½", U"½", 25, U"25"},
    {"NumberAndFraction", U"1½", U"1½", 25, U"25"},
    {"RomanNumeral", U"Ⅻ", U"Ⅻ", 25, U"25"},
    {"CircledDigit", U"①", U"①", 25, U"25"},
    {"Superscript", U"3²", U"3²", 25, U"25"},
    {"OtherScriptAndLetters", U"x٣y", U"٣", 25, U"25"},
};

} // namespace

class NumberTextInputTest : public testing::TestWithParam<Input> {
protected:
    Owner owner;
    NumberText number{owner.value, isNumeric};
};

TEST_P(NumberTextInputTest, KeepsOnlyNumericCharactersWhileTyping)
{
    number.setText(GetParam().entered);

    EXPECT_EQ(number.text(), GetParam().whileTyping);
    EXPECT_EQ(owner.value(), 25);
}

TEST_P(NumberTextInputTest, TakesOrRestoresTheValueWhenEditingEnds)
{
    number.setText(GetParam().entered);

    number.endEditing();

    EXPECT_EQ(number.text(), GetParam().afterLeaving);
    EXPECT_EQ(owner.value(), GetParam().value);
}

TEST_P(NumberTextInputTest, ANewValueReplacesTheText)
{
    number.setText(GetParam().entered);

    owner.value.set(80);
    EXPECT_EQ(number.text(), U"80");

    number.endEditing();
    EXPECT_EQ(owner.value(), 80);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NumberTextInputTest, testing::ValuesIn(inputs), [](const auto& each) { return each.param.name; });

TEST(NumberTextTest, StartsWithTheValueAndItsSign)
{
    for (const auto& [value, text] : std::vector<std::pair<std::int64_t, std::u32string>>{
             {25, U"25"}, {0, U"0"}, {-3, U"-3"}, {1000000, U"1000000"}, {INT64_MIN, U"-9223372036854775808"}}) {
        Owner owner;
        owner.value.set(value);

        EXPECT_EQ(NumberText(owner.value, isNumeric).text(), text);
    }
}

TEST(NumberTextTest, AnUntouchedValueBelowOneIsKept)
{
    Owner owner;
    owner.value.set(-3);
    NumberText number{owner.value, isNumeric};

    number.endEditing();

    EXPECT_EQ(number.text(), U"-3");
    EXPECT_EQ(owner.value(), -3);
}

TEST(NumberTextTest, TheSameValueFromElsewhereLeavesTheTextAlone)
{
    Owner owner;
    NumberText number{owner.value, isNumeric};
    number.setText(U"4");

    owner.value.set(25);

    EXPECT_EQ(number.text(), U"4");
}

TEST(NumberTextTest, EditingCanGoOnAfterItEnded)
{
    Owner owner;
    NumberText number{owner.value, isNumeric};
    number.setText(U"30");
    number.endEditing();
    number.setText(U"300");
    number.setText(U"");

    number.endEditing();

    EXPECT_EQ(number.text(), U"30");
    EXPECT_EQ(owner.value(), 30);
}

} // namespace velto
