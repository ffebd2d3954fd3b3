// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/options.h"

#include <gtest/gtest.h>

#include <gmock/gmock.h>

namespace zelvar::sim {
namespace {

using Arguments = std::vector<std::string_view>;
using testing::HasSubstr;

Options Right(const Arguments& arguments) {
    const auto parsed = ParseOptions(arguments);
    if (const auto* end = std::get_if<EarlyEnd>(&parsed)) {
        ADD_FAILURE() << end->text;
        return {};
    }
    return std::get<Options>(parsed);
}

EarlyEnd EndOf(const Arguments& arguments) {
    const auto parsed = ParseOptions(arguments);
    const auto* end = std::get_if<EarlyEnd>(&parsed);
    return end == nullptr ? EarlyEnd{-1, "no end"} : *end;
}

TEST(OptionsTest, WithoutAnyTheDefaultsApply) {
    const Options options = Right({});
    EXPECT_TRUE(options.pacing);
    EXPECT_EQ(options.baud, 19200);
    EXPECT_EQ(options.unitDelay, std::chrono::milliseconds(1));
    EXPECT_EQ(options.timeFactor, 1);
    EXPECT_EQ(options.seed, 0);
    EXPECT_EQ(options.link, "");
    EXPECT_EQ(options.device, "");
    EXPECT_EQ(options.explain, "");
    EXPECT_EQ(options.layoutName, "club");
    EXPECT_FALSE(options.trace);
    EXPECT_FALSE(options.listLayouts);
}

TEST(OptionsTest, TakesAllOfThem) {
    const Options options = Right({"--link", "/x/y", "--no-pacing", "--baud", "38400", "--layout",
                                   "none", "--unit-delay", "0", "--time-factor", "100", "--seed",
                                   "2147483647", "--trace", "--explain", "-", "--list-layouts"});
    EXPECT_EQ(options.link, "/x/y");
    EXPECT_FALSE(options.pacing);
    EXPECT_EQ(options.baud, 38400);
    EXPECT_EQ(options.layoutName, "none");
    EXPECT_EQ(options.unitDelay, std::chrono::milliseconds(0));
    EXPECT_EQ(options.timeFactor, 100);
    EXPECT_EQ(options.seed, 2147483647);
    EXPECT_TRUE(options.trace);
    EXPECT_EQ(options.explain, "-");
    EXPECT_TRUE(options.listLayouts);
    EXPECT_EQ(Right({"--device", "/dev/x"}).device, "/dev/x");
    EXPECT_EQ(Right({"--unit-delay", "60000"}).unitDelay, std::chrono::milliseconds(60000));
}

TEST(OptionsTest, TakesAValueInTheSameWord) {
    const Options options = Right({"--link=/x/y=z", "--baud=38400", "--no-pacing", "--seed=0x10"});
    EXPECT_EQ(options.link, "/x/y=z");
    EXPECT_EQ(options.baud, 38400);
    EXPECT_EQ(options.seed, 16);
}

TEST(OptionsTest, TheLastOfTheSameOptionCounts) {
    EXPECT_EQ(Right({"--layout", "club", "--layout", "starter"}).layoutName, "starter");
}

TEST(OptionsTest, LeadingZerosMakeNoOctalNumber) {
    EXPECT_EQ(Right({"--seed", "010"}).seed, 10);
}

TEST(OptionsTest, HelpAndVersionEndWithoutAMistake) {
    for (const char* word : {"--help", "-h"}) {
        EXPECT_EQ(EndOf({word}).status, 0);
        EXPECT_EQ(EndOf({word}).text, UsageText());
    }
    EXPECT_EQ(EndOf({"--version"}).status, 0);
    EXPECT_THAT(EndOf({"--version"}).text, testing::MatchesRegex("zelvarsim [0-9.]+\n"));
}

struct WrongCase {
    const char* name;
    Arguments arguments;
    const char* option;
    const char* expected;
};

class WrongOptions : public testing::TestWithParam<WrongCase> {};

TEST_P(WrongOptions, NameTheOptionAndWhatWasExpected) {
    const EarlyEnd end = EndOf(GetParam().arguments);
    EXPECT_EQ(end.status, 2);
    EXPECT_THAT(end.text, testing::StartsWith("zelvarsim: "));
    EXPECT_THAT(end.text, HasSubstr(GetParam().option));
    EXPECT_THAT(end.text, HasSubstr(GetParam().expected));
    EXPECT_THAT(end.text, testing::EndsWith("\nTry \"zelvarsim --help\".\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongOptions,
    testing::Values(
        WrongCase{"Unknown", {"--lnk", "x"}, "--lnk", "not expected"},
        WrongCase{"Shortened", {"--lin", "x"}, "--lin", "not expected"},
        WrongCase{"BareWord", {"x"}, "x", "not expected"},
        WrongCase{"MissingValue", {"--no-pacing", "--link"}, "--link", "PATH missing"},
        WrongCase{"ValueOfAFlag", {"--trace=on"}, "trace", "disallowed"},
        WrongCase{"EmptyLink", {"--link", ""}, "--link", "expected a path, found \"\""},
        WrongCase{"EmptyDevice", {"--device", ""}, "--device", "expected a path"},
        WrongCase{"Baud", {"--baud", "9600"}, "--baud", "expected 19200 or 38400, found \"9600\""},
        WrongCase{"Layout", {"--layout", ""}, "--layout", "expected a name or a path"},
        WrongCase{"Explain", {"--explain", ""}, "--explain", "expected a path or \"-\""},
        WrongCase{"Delay", {"--unit-delay", "-1"}, "--unit-delay", "0..60000, found \"-1\""},
        WrongCase{"DelayTooLong", {"--unit-delay", "60001"}, "--unit-delay", "a whole number"},
        WrongCase{"DelayText", {"--unit-delay=5ms"}, "--unit-delay", "found \"5ms\""},
        WrongCase{"TimeFactor", {"--time-factor", "101"}, "--time-factor", "0..100, found \"101\""},
        WrongCase{"TimeFactorBelow", {"--time-factor", "-1"}, "--time-factor", "found \"-1\""},
        WrongCase{"Seed", {"--seed", "-1"}, "--seed", "0..2147483647, found \"-1\""},
        WrongCase{"SeedTooHigh", {"--seed", "2147483648"}, "--seed", "found \"2147483648\""},
        WrongCase{"LinkAndDevice", {"--link", "a", "--device", "b"}, "--link", "--device"}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::sim
