// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

namespace zelvar::testing {
namespace {

struct TextRow {
    const char* name;
    std::string text;
    double number;
};

class NumberText : public ::testing::TestWithParam<TextRow> {};

TEST_P(NumberText, IsReadAsFarAsItGoes) {
    EXPECT_DOUBLE_EQ(Val(GetParam().text), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NumberText,
    ::testing::Values(
        TextRow{"Empty", "", 0}, TextRow{"Blanks", "   ", 0}, TextRow{"Letters", "abc", 0},
        TextRow{"Digits", "42", 42}, TextRow{"LeadingBlanks", "   42", 42},
        TextRow{"LeadingTab", "\t42", 42}, TextRow{"TrailingLetters", "42abc", 42},
        TextRow{"BlankEndsTheNumber", "4 2", 4}, TextRow{"LetterFirst", "a42", 0},
        TextRow{"Plus", "+42", 42}, TextRow{"Minus", "-42", -42}, TextRow{"SignAlone", "-", 0},
        TextRow{"TwoSigns", "--42", 0}, TextRow{"SignThenBlank", "- 42", 0},
        TextRow{"Fraction", "1.25", 1.25}, TextRow{"PointFirst", ".5", 0.5},
        TextRow{"PointLast", "5.", 5}, TextRow{"PointAlone", ".", 0},
        TextRow{"TwoPoints", "1.2.3", 1.2}, TextRow{"CommaEndsTheNumber", "1,5", 1},
        TextRow{"Exponent", "1e3", 1000}, TextRow{"UpperCaseExponent", "1E3", 1000},
        TextRow{"PositiveExponent", "25e+2", 2500}, TextRow{"NegativeExponent", "25e-1", 2.5},
        TextRow{"ExponentAfterPoint", "5.e2", 500}, TextRow{"ExponentWithoutDigits", "7e", 7},
        TextRow{"ExponentWithSignAlone", "7e+", 7}, TextRow{"ExponentAlone", "e5", 0},
        TextRow{"ExponentWithFraction", "1e2.5", 100}, TextRow{"LeadingZeros", "007", 7},
        TextRow{"Hexadecimal", "0x10", 0}, TextRow{"Infinity", "inf", 0},
        TextRow{"NotANumber", "nan", 0}, TextRow{"NoBreakBlank", "\u00a05", 0},
        TextRow{"TooSmall", "1e-999", 0},
        TextRow{"TooManyZerosBehindThePoint", "0." + std::string(400, '0') + "1", 0},
        TextRow{"LargeDigitsSmallExponent", "1" + std::string(400, '0') + "e-399", 10}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(NumberTextTest, WhatIsTooLargeIsStillFinite) {
    for (const std::string& text : {std::string("1e999"), std::string(400, '9'),
                                    "1" + std::string(400, '0') + "e-2", std::string("9e99999")}) {
        EXPECT_TRUE(std::isfinite(Val(text))) << text;
        EXPECT_GT(Val(text), 1e300) << text;
        EXPECT_LT(Val("-" + text), -1e300) << text;
    }
}

struct IntegerRow {
    const char* name;
    const char* text;
    int minimum;
    int maximum;
    int number;
};

class IntegerText : public ::testing::TestWithParam<IntegerRow> {};

TEST_P(IntegerText, IsRoundedAndClamped) {
    EXPECT_EQ(ValToInt(GetParam().text, GetParam().minimum, GetParam().maximum), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, IntegerText,
    ::testing::Values(IntegerRow{"Whole", "12", 0, 255, 12}, IntegerRow{"Empty", "", 0, 255, 0},
                      IntegerRow{"EmptyBelowTheRange", "", 1, 255, 1},
                      IntegerRow{"HalfToEvenBelow", "0.5", 0, 255, 0},
                      IntegerRow{"HalfToEvenAbove", "1.5", 0, 255, 2},
                      IntegerRow{"HalfToEvenBelowAgain", "2.5", 0, 255, 2},
                      IntegerRow{"MoreThanHalf", "2.51", 0, 255, 3},
                      IntegerRow{"LessThanHalf", "3.49", 0, 255, 3},
                      IntegerRow{"NegativeHalf", "-0.5", -10, 10, 0},
                      IntegerRow{"NegativeHalfToEven", "-1.5", -10, 10, -2},
                      IntegerRow{"NegativeHalfToEvenAgain", "-2.5", -10, 10, -2},
                      IntegerRow{"Negative", "-2.6", -10, 10, -3},
                      IntegerRow{"AtTheMaximum", "255", 0, 255, 255},
                      IntegerRow{"AboveTheMaximum", "256", 0, 255, 255},
                      IntegerRow{"BelowTheMinimum", "-1", 0, 255, 0},
                      IntegerRow{"Huge", "99999999999", 0, 255, 255},
                      IntegerRow{"HugeNegative", "-1e300", 0, 255, 0},
                      IntegerRow{"Beyond", "1e999", 0, 9999, 9999},
                      IntegerRow{"WholeIntRange", "1e20", -2147483647 - 1, 2147483647, 2147483647},
                      IntegerRow{"WholeIntRangeBelow", "-1e20", -2147483647 - 1, 2147483647,
                                 -2147483647 - 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(NumberTextTest, TheLocaleOfTheProcessPlaysNoPart) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    bool tried = false;
    for (const char* locale : {"de_DE.UTF-8", "nl_NL.UTF-8", "fr_FR.UTF-8"}) {
        if (std::setlocale(LC_ALL, locale) != nullptr) {
            tried = true;
            EXPECT_DOUBLE_EQ(Val("1.5"), 1.5) << locale;
            EXPECT_DOUBLE_EQ(Val("1,5"), 1) << locale;
        }
    }
    std::setlocale(LC_ALL, before.c_str());
    if (!tried) {
        GTEST_SKIP() << "no locale with a decimal comma is installed here";
    }
}

}  // namespace
}  // namespace zelvar::testing
