// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/options.h"

#include <gtest/gtest.h>

#include <vector>

namespace zelvar::sim {
namespace {

std::variant<Options, std::string> Parse(const std::vector<std::string_view>& arguments) {
    return ParseOptions(arguments);
}

Options Right(const std::vector<std::string_view>& arguments) {
    const auto parsed = Parse(arguments);
    EXPECT_TRUE(std::holds_alternative<Options>(parsed));
    return std::holds_alternative<Options>(parsed) ? std::get<Options>(parsed) : Options{};
}

TEST(OptionsTest, WithoutAnyTheDefaultsHold) {
    const Options options = Right({});
    EXPECT_TRUE(options.pacing);
    EXPECT_EQ(options.baud, 19200);
    EXPECT_EQ(options.unitDelay, std::chrono::milliseconds(1));
    EXPECT_EQ(options.timeFactor, 1);
    EXPECT_EQ(options.seed, 0);
    EXPECT_TRUE(options.link.empty());
    EXPECT_TRUE(options.device.empty());
    EXPECT_EQ(options.layoutName, "club");
}

TEST(OptionsTest, TakesAllOfThem) {
    const Options options = Right({"--link", "/x/y", "--no-pacing", "--baud", "38400", "--layout",
                                   "none", "--unit-delay", "0", "--time-factor", "100", "--seed",
                                   "2147483647", "--help", "--version", "--list-layouts"});
    EXPECT_EQ(options.link, "/x/y");
    EXPECT_FALSE(options.pacing);
    EXPECT_EQ(options.baud, 38400);
    EXPECT_EQ(options.layoutName, "none");
    EXPECT_EQ(options.unitDelay, std::chrono::milliseconds(0));
    EXPECT_EQ(options.timeFactor, 100);
    EXPECT_EQ(options.seed, 2147483647);
    EXPECT_TRUE(options.help);
    EXPECT_TRUE(options.version);
    EXPECT_TRUE(options.listLayouts);
    EXPECT_EQ(Right({"--device", "/dev/x"}).device, "/dev/x");
}

TEST(OptionsTest, TakesAValueInTheSameWord) {
    const Options options = Right({"--link=/x/y=z", "--baud=38400", "--no-pacing", "--seed=7"});
    EXPECT_EQ(options.link, "/x/y=z");
    EXPECT_EQ(options.baud, 38400);
    EXPECT_EQ(options.seed, 7);
}

TEST(OptionsTest, TakesTheHighestOfEachNumber) {
    EXPECT_EQ(Right({"--unit-delay", "60000"}).unitDelay, std::chrono::milliseconds(60000));
}

TEST(OptionsTest, HasAShortWordForHelp) {
    EXPECT_TRUE(Right({"-h"}).help);
}

struct WrongCase {
    const char* name;
    std::vector<std::string_view> arguments;
    const char* message;
};

class WrongOptions : public testing::TestWithParam<WrongCase> {};

TEST_P(WrongOptions, SayWhatIsWrong) {
    const auto parsed = Parse(GetParam().arguments);
    ASSERT_TRUE(std::holds_alternative<std::string>(parsed));
    EXPECT_EQ(std::get<std::string>(parsed), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongOptions,
    testing::Values(
        WrongCase{"Unknown", {"--lnk", "x"}, "unknown option --lnk"},
        WrongCase{"BareWord", {"x"}, "unknown option x"},
        WrongCase{
            "MissingValue", {"--no-pacing", "--link"}, "missing value of --link: a path expected"},
        WrongCase{"NoValueWanted", {"--trace=on"}, "--trace takes no value"},
        WrongCase{"UnknownWithValue", {"--lnk=x"}, "unknown option --lnk"},
        WrongCase{
            "EmptyLink", {"--link", ""}, "wrong value of --link: a path expected, found \"\""},
        WrongCase{"EmptyBehindTheSign",
                  {"--link="},
                  "wrong value of --link: a path expected, found \"\""},
        WrongCase{"Baud",
                  {"--baud", "9600"},
                  "wrong value of --baud: 19200 or 38400 expected, found \"9600\""},
        WrongCase{"Layout",
                  {"--layout", ""},
                  "wrong value of --layout: a name or a path expected, found \"\""},
        WrongCase{"Explain",
                  {"--explain", ""},
                  "wrong value of --explain: a path or \"-\" expected, found \"\""},
        WrongCase{"Delay",
                  {"--unit-delay", "-1"},
                  "wrong value of --unit-delay: a whole number 0..60000 expected, found \"-1\""},
        WrongCase{"DelayTooLong",
                  {"--unit-delay", "60001"},
                  "wrong value of --unit-delay: a whole number 0..60000 expected, found "
                  "\"60001\""},
        WrongCase{"DelayText",
                  {"--unit-delay=5ms"},
                  "wrong value of --unit-delay: a whole number 0..60000 expected, found \"5ms\""},
        WrongCase{"TimeFactor",
                  {"--time-factor", "101"},
                  "wrong value of --time-factor: a whole number 0..100 expected, found \"101\""},
        WrongCase{"TimeFactorNegative",
                  {"--time-factor", "-1"},
                  "wrong value of --time-factor: a whole number 0..100 expected, found \"-1\""},
        WrongCase{"Seed",
                  {"--seed", "-1"},
                  "wrong value of --seed: a whole number 0..2147483647 expected, found \"-1\""},
        WrongCase{"SeedTooHigh",
                  {"--seed", "2147483648"},
                  "wrong value of --seed: a whole number 0..2147483647 expected, found "
                  "\"2147483648\""},
        WrongCase{"LinkAndDevice",
                  {"--link", "a", "--device", "b"},
                  "--link and --device exclude each other"}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::sim
