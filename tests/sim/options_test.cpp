// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "options.h"

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
        WrongCase{"MissingValue", {"--no-pacing", "--link"}, "missing value of --link"},
        WrongCase{"EmptyLink", {"--link", ""}, "wrong value of --link: "},
        WrongCase{"Baud", {"--baud", "9600"}, "wrong value of --baud: 9600"},
        WrongCase{"Layout", {"--layout", ""}, "wrong value of --layout: "},
        WrongCase{"Delay", {"--unit-delay", "-1"}, "wrong value of --unit-delay: -1"},
        WrongCase{"DelayText", {"--unit-delay", "5ms"}, "wrong value of --unit-delay: 5ms"},
        WrongCase{"TimeFactor", {"--time-factor", "101"}, "wrong value of --time-factor: 101"},
        WrongCase{
            "TimeFactorNegative", {"--time-factor", "-1"}, "wrong value of --time-factor: -1"},
        WrongCase{"Seed", {"--seed", "-1"}, "wrong value of --seed: -1"},
        WrongCase{"SeedTooHigh", {"--seed", "2147483648"}, "wrong value of --seed: 2147483648"},
        WrongCase{"LinkAndDevice",
                  {"--link", "a", "--device", "b"},
                  "--link and --device exclude each other"}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::sim
