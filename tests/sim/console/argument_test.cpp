// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/argument.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

using Words = std::vector<std::string>;

Words Animals(const UnitState&) {
    return {"cat", "cat fish", "dog"};
}

Words Numbers(const UnitState&) {
    return {"one", "two", "three", "four", "five", "six", "seven", "eight", "nine"};
}

Words NoNames(const UnitState&) {
    return {};
}

constexpr Argument kByte = Number("B", 0, 255);
constexpr ArgumentList kPair = {kByte, Choice(kOnOff)};
constexpr ArgumentList kMove = {Name("ANIMAL", &Animals), Optional(Number("CM", -5, 5))};
constexpr ArgumentList kState = {kByte, Literal("state"), Literal("off")};
constexpr ArgumentList kHex = {Bytes("HEX")};
constexpr ArgumentList kMany = {Name("NUMBER", &Numbers)};
constexpr ArgumentList kNoTrains = {Name("TRAIN", &NoNames)};
constexpr ArgumentList kNone = {};

struct FitCase {
    const char* name;
    const ArgumentList* arguments;
    const char* line;
    Values values;
};

class FittingWords : public testing::TestWithParam<FitCase> {};

TEST_P(FittingWords, GiveTheValues) {
    const auto parsed = ParseArguments(UnitState(EmptyLayout()), *GetParam().arguments,
                                       SplitWords(GetParam().line));
    ASSERT_TRUE(std::holds_alternative<Values>(parsed));
    EXPECT_EQ(std::get<Values>(parsed), GetParam().values);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FittingWords,
    testing::Values(FitCase{"None", &kNone, "", {}},
                    FitCase{"NumberAtItsLeastAndAChoice", &kPair, "0 on", {0, 1}},
                    FitCase{"NumberAtItsMost", &kPair, "255 off", {255, 0}},
                    FitCase{"HexadecimalNumber", &kPair, "0x1F off", {31, 0}},
                    FitCase{"LiteralsHaveNoValue", &kState, "7 state off", {7}},
                    FitCase{"Bytes", &kHex, "FF 8 0a", {255, 8, 10}},
                    FitCase{"Name", &kMove, "dog", {2}},
                    FitCase{"NameAndOptionalNumber", &kMove, "dog -5", {2, -5}},
                    FitCase{"TheShorterName", &kMove, "cat 5", {0, 5}},
                    FitCase{"TheLongerNameWithItsSpace", &kMove, "cat fish 5", {1, 5}}),
    [](const auto& row) { return row.param.name; });

/// `place`: how many words fit. Without words and message it is the usage that is wrong.
struct MisfitCase {
    const char* name;
    const ArgumentList* arguments;
    const char* line;
    int place;
    Words expected;
    const char* message;
};

class MisfittingWords : public testing::TestWithParam<MisfitCase> {};

TEST_P(MisfittingWords, SayWhatWasExpected) {
    const auto parsed = ParseArguments(UnitState(EmptyLayout()), *GetParam().arguments,
                                       SplitWords(GetParam().line));
    ASSERT_TRUE(std::holds_alternative<Misfit>(parsed));
    const Misfit& misfit = std::get<Misfit>(parsed);
    EXPECT_EQ(misfit.place, GetParam().place);
    EXPECT_EQ(misfit.expected, GetParam().expected);
    EXPECT_EQ(misfit.message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MisfittingWords,
    testing::Values(
        MisfitCase{"TooManyForNone", &kNone, "x", 0, {}, ""},
        MisfitCase{"TooFew", &kPair, "5", 1, {}, ""},
        MisfitCase{"TooMany", &kPair, "5 on on", 2, {}, ""},
        MisfitCase{"NumberBelow", &kPair, "-1 on", 0, {}, "B: expected 0..255, found -1"},
        MisfitCase{"NumberAbove", &kPair, "256 on", 0, {}, "B: expected 0..255, found 256"},
        MisfitCase{"NoNumber", &kPair, "1.5 on", 0, {}, "B: expected 0..255, found 1.5"},
        MisfitCase{"OptionalNumber", &kMove, "dog 6", 1, {}, "CM: expected -5..5, found 6"},
        MisfitCase{"Choice", &kPair, "5 On", 1, {"on", "off"}, ""},
        MisfitCase{"Literal", &kState, "5 stat", 1, {"state"}, ""},
        MisfitCase{"LaterLiteral", &kState, "5 state on", 2, {"off"}, ""},
        MisfitCase{"NoBytes", &kHex, "", 0, {}, ""},
        MisfitCase{"ThreeDigits",
                   &kHex,
                   "0 100",
                   0,
                   {},
                   "HEX: expected two hexadecimal digits, found 100"},
        MisfitCase{"NoDigit", &kHex, "G0", 0, {}, "HEX: expected two hexadecimal digits, found G0"},
        MisfitCase{"Sign", &kHex, "-1", 0, {}, "HEX: expected two hexadecimal digits, found -1"},
        MisfitCase{"NearestName", &kMove, "dgo", 0, {}, "unknown animal dgo; did you mean dog?"},
        MisfitCase{"FewNames",
                   &kMove,
                   "horse",
                   0,
                   {},
                   "unknown animal horse: expected cat, cat fish or dog"},
        MisfitCase{"ManyNames", &kMany, "hundred", 0, {}, "unknown number hundred: none of the 9"},
        MisfitCase{"NoNames", &kNoTrains, "red", 0, {}, "unknown train red: the layout has none"}),
    [](const auto& row) { return row.param.name; });

TEST(ArgumentListTest, HasAUsageAndRanges) {
    EXPECT_EQ(Usage(kNone), "");
    EXPECT_EQ(Usage(kPair), "B on|off");
    EXPECT_EQ(Usage(kMove), "ANIMAL [CM]");
    EXPECT_EQ(Usage(kState), "B state off");
    EXPECT_EQ(Usage(kHex), "HEX...");
    EXPECT_EQ(Ranges(kMove), "CM -5..5");
    EXPECT_EQ(Ranges({kByte, Number("S", 1, 2)}), "B 0..255, S 1..2");
    EXPECT_EQ(Ranges(kHex), "");
}

}  // namespace
}  // namespace zelvar::sim
