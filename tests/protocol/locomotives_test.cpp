// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/locomotives.h"

#include <gtest/gtest.h>

#include "protocol/command_case.h"
#include "support/doubles.h"

namespace zelvar::testing {
namespace {

class LocoCommands : public ::testing::TestWithParam<CommandCase> {};

TEST_P(LocoCommands, HasTheValuesOfTheCatalogue) {
    EXPECT_EQ(ValuesOf(GetParam().command), GetParam().values);
}

const std::vector<CommandCase> kAnalogCases{
    {"SpeedBlock0", AnalogSpeed(0, 0, false), {34, 0, 0}},
    {"SpeedBlock5Forward", AnalogSpeed(5, 12, true), {34, 5, 76}},
    {"SpeedBlock127Top", AnalogSpeed(127, 63, true), {34, 127, 127}},
    {"SpeedBlock128TopReverse", AnalogSpeed(128, 63, false), {35, 0, 63}},
    {"SpeedBlock200", AnalogSpeed(200, 1, false), {35, 72, 1}},
    {"SpeedBlock255", AnalogSpeed(255, 1, true), {35, 127, 65}},
    {"RampBlock5", AnalogSpeedRamp(5, 12, true, 10), {34, 5, 76, 10}},
    {"RampBlock0Slowest", AnalogSpeedRamp(0, 0, false, 1), {34, 0, 0, 1}},
    {"RampBlock128Fastest", AnalogSpeedRamp(128, 63, false, 127), {35, 0, 63, 127}},
    {"LightOnBlock0", AnalogLight(0, true), {32, 0, 16}},
    {"LightOffBlock127", AnalogLight(127, false), {32, 127, 0}},
    {"LightOnBlock128", AnalogLight(128, true), {33, 0, 16}},
    {"LightOffBlock255", AnalogLight(255, false), {33, 127, 0}},
    {"HfiLowest", SetHfi(0), {1, 1, 0}},
    {"HfiHighest", SetHfi(15), {1, 1, 15}},
};
INSTANTIATE_TEST_SUITE_P(Analog, LocoCommands, ::testing::ValuesIn(kAnalogCases), CaseName);

constexpr DccAddress kShort{3, false};
constexpr DccAddress kForced{3, true};

const std::vector<CommandCase> kDccCases{
    {"Speed28Short", DccSpeed(DccSteps::k28, 0, 10, true, kShort), {40, 0, 106, 3}},
    {"Speed28Forced", DccSpeed(DccSteps::k28, 0, 10, true, kForced), {40, 0, 106, 3, 0}},
    {"Speed28Decoder1", DccSpeed(DccSteps::k28, 127, 0, false, {1, false}), {40, 127, 64, 1}},
    {"Speed28Decoder127", DccSpeed(DccSteps::k28, 128, 28, false, {127, false}), {41, 0, 92, 127}},
    {"Speed28Decoder128",
     DccSpeed(DccSteps::k28, 255, 28, true, {128, false}),
     {41, 127, 124, 0, 1}},
    {"Speed28Decoder1000", DccSpeed(DccSteps::k28, 0, 0, true, {1000, false}), {40, 0, 96, 104, 7}},
    {"Speed28Decoder10239",
     DccSpeed(DccSteps::k28, 0, 1, true, {10239, false}),
     {40, 0, 97, 127, 79}},
    {"Speed126Reverse", DccSpeed(DccSteps::k126, 0, 100, false, kShort), {44, 0, 0, 100, 3}},
    {"Speed126Forced", DccSpeed(DccSteps::k126, 0, 126, true, kForced), {44, 0, 1, 126, 3, 0}},
    {"Speed126Block128", DccSpeed(DccSteps::k126, 128, 0, true, {128, true}), {45, 0, 1, 0, 0, 1}},
    {"Speed126Block255",
     DccSpeed(DccSteps::k126, 255, 1, false, {10239, false}),
     {45, 127, 0, 1, 127, 79}},
    {"Estop28Forward", DccEstop(DccSteps::k28, 0, true, kShort), {40, 0, 127, 3}},
    {"Estop28Reverse", DccEstop(DccSteps::k28, 0, false, kShort), {40, 0, 95, 3}},
    {"Estop28LongBlock200",
     DccEstop(DccSteps::k28, 200, true, {1000, false}),
     {41, 72, 127, 104, 7}},
    {"Estop126Forward", DccEstop(DccSteps::k126, 0, true, kShort), {44, 0, 1, 127, 3}},
    {"Estop126ReverseForced",
     DccEstop(DccSteps::k126, 255, false, kForced),
     {45, 127, 0, 127, 3, 0}},
};
INSTANTIATE_TEST_SUITE_P(Dcc, LocoCommands, ::testing::ValuesIn(kDccCases), CaseName);

const std::vector<CommandCase> kMccCases{
    {"SpeedDecoder0", MccSpeed(0, 16, 0), {6, 0, 0, 16, 0}},
    {"SpeedDecoder127", MccSpeed(127, 1, 7), {6, 0, 127, 1, 7}},
    {"SpeedDecoder128", MccSpeed(128, 31, 1), {6, 1, 0, 31, 1}},
    {"SpeedDecoder4095", MccSpeed(4095, 17, 3), {6, 31, 127, 17, 3}},
    {"EstopDecoder0", MccEstop(0), {6, 0, 0, 0, 0}},
    {"EstopDecoder4095", MccEstop(4095), {6, 31, 127, 0, 0}},
    {"FunctionsNone", MccFunctions(128, {}), {7, 1, 0, 0, 0}},
    {"FunctionsAll", MccFunctions(4095, 0xFF), {7, 31, 127, 15, 15}},
    {"FunctionLight", MccFunctions(5, 1U << 0), {7, 0, 5, 1, 0}},
    {"FunctionBrake", MccFunctions(5, 1U << 1), {7, 0, 5, 2, 0}},
    {"FunctionLeft", MccFunctions(5, 1U << 2), {7, 0, 5, 4, 0}},
    {"FunctionRight", MccFunctions(5, 1U << 3), {7, 0, 5, 8, 0}},
    {"FunctionF1", MccFunctions(5, 1U << 4), {7, 0, 5, 0, 1}},
    {"FunctionF2", MccFunctions(5, 1U << 5), {7, 0, 5, 0, 2}},
    {"FunctionF3", MccFunctions(5, 1U << 6), {7, 0, 5, 0, 4}},
    {"FunctionF4", MccFunctions(5, 1U << 7), {7, 0, 5, 0, 8}},
};
INSTANTIATE_TEST_SUITE_P(Mcc, LocoCommands, ::testing::ValuesIn(kMccCases), CaseName);

/// One DCC function alone in its group's command, to decoder 3 in block 9.
struct FunctionBit {
    std::size_t function;
    int group;
    std::vector<int> values;
};

void PrintTo(const FunctionBit& row, std::ostream* out) {
    *out << 'F' << row.function;
}

class DccFunctionBits : public ::testing::TestWithParam<FunctionBit> {};

TEST_P(DccFunctionBits, TravelsInItsOwnPlace) {
    DccFunctionSet functions;
    functions[GetParam().function] = true;
    const auto command = DccFunctions(GetParam().group, 9, functions, kShort);
    ASSERT_TRUE(command.has_value());
    EXPECT_EQ(ValuesOf(*command), GetParam().values);
}

INSTANTIATE_TEST_SUITE_P(
    All, DccFunctionBits,
    ::testing::Values(FunctionBit{0, 0, {40, 9, 16, 3}}, FunctionBit{1, 0, {40, 9, 1, 3}},
                      FunctionBit{2, 0, {40, 9, 2, 3}}, FunctionBit{3, 0, {40, 9, 4, 3}},
                      FunctionBit{4, 0, {40, 9, 8, 3}}, FunctionBit{5, 1, {40, 9, 49, 3}},
                      FunctionBit{6, 1, {40, 9, 50, 3}}, FunctionBit{7, 1, {40, 9, 52, 3}},
                      FunctionBit{8, 1, {40, 9, 56, 3}}, FunctionBit{9, 2, {40, 9, 33, 3}},
                      FunctionBit{10, 2, {40, 9, 34, 3}}, FunctionBit{11, 2, {40, 9, 36, 3}},
                      FunctionBit{12, 2, {40, 9, 40, 3}}, FunctionBit{13, 3, {44, 9, 4, 1, 3}},
                      FunctionBit{14, 3, {44, 9, 4, 2, 3}}, FunctionBit{15, 3, {44, 9, 4, 4, 3}},
                      FunctionBit{16, 3, {44, 9, 4, 8, 3}}, FunctionBit{17, 3, {44, 9, 4, 16, 3}},
                      FunctionBit{18, 3, {44, 9, 4, 32, 3}}, FunctionBit{19, 3, {44, 9, 4, 64, 3}},
                      FunctionBit{20, 3, {44, 9, 5, 0, 3}}, FunctionBit{21, 4, {44, 9, 6, 1, 3}},
                      FunctionBit{22, 4, {44, 9, 6, 2, 3}}, FunctionBit{23, 4, {44, 9, 6, 4, 3}},
                      FunctionBit{24, 4, {44, 9, 6, 8, 3}}, FunctionBit{25, 4, {44, 9, 6, 16, 3}},
                      FunctionBit{26, 4, {44, 9, 6, 32, 3}}, FunctionBit{27, 4, {44, 9, 6, 64, 3}},
                      FunctionBit{28, 4, {44, 9, 7, 0, 3}}),
    [](const auto& row) { return "F" + std::to_string(row.param.function); });

TEST(DccFunctionGroups, SendAllTheirFunctionsAndNoOthers) {
    DccFunctionSet all;
    all.set();
    const std::vector<std::vector<int>> expected{{40, 0, 31, 104, 7},
                                                 {40, 0, 63, 104, 7},
                                                 {40, 0, 47, 104, 7},
                                                 {44, 0, 5, 127, 104, 7},
                                                 {44, 0, 7, 127, 104, 7}};
    for (int group = 0; group < kDccFunctionGroups; ++group) {
        EXPECT_EQ(ValuesOf(*DccFunctions(group, 0, all, {1000, false})),
                  expected[static_cast<std::size_t>(group)])
            << "group " << group;
    }
}

TEST(DccFunctionGroups, TakeTheLongAddressWhenItIsForced) {
    EXPECT_EQ(ValuesOf(*DccFunctions(0, 0, {}, kForced)), (std::vector<int>{40, 0, 0, 3, 0}));
    EXPECT_EQ(ValuesOf(*DccFunctions(3, 0, {}, kForced)), (std::vector<int>{44, 0, 4, 0, 3, 0}));
}

TEST(DccFunctionGroups, OutsideTheFiveSendNothing) {
    EXPECT_FALSE(DccFunctions(-1, 0, {}, kShort).has_value());
    EXPECT_FALSE(DccFunctions(5, 0, {}, kShort).has_value());
}

struct BlockCase {
    int block;
    int group;
};

class DccFunctionsOfHighBlocks : public LinkFixture,
                                 public ::testing::WithParamInterface<BlockCase> {};

TEST_P(DccFunctionsOfHighBlocks, OverflowBehindTheBytesBeforeTheBlock) {
    const auto command = DccFunctions(GetParam().group, GetParam().block, {}, kShort);
    EXPECT_EQ(command->values[1], GetParam().block);
    EXPECT_FALSE(link.Transact(*command));
    const int count = GetParam().group < 3 ? 4 : 5;
    const int first = GetParam().group < 3 ? 40 : 44;
    EXPECT_EQ(port.written, (Bytes{static_cast<std::uint8_t>(8 + count),
                                   static_cast<std::uint8_t>(128 + first)}));
    EXPECT_EQ(messageBox.shown,
              (std::vector<ShownBox>{{"Overflow", BoxIcon::Critical, BoxButtons::Ok}}));
}

INSTANTIATE_TEST_SUITE_P(Above127, DccFunctionsOfHighBlocks,
                         ::testing::Values(BlockCase{128, 0}, BlockCase{200, 1}, BlockCase{255, 2},
                                           BlockCase{128, 3}, BlockCase{255, 4}),
                         [](const auto& row) {
                             return "Block" + std::to_string(row.param.block) + "Group" +
                                    std::to_string(row.param.group);
                         });

using DccFunctionsOfLowBlocks = LinkFixture;

TEST_F(DccFunctionsOfLowBlocks, GoOutUpToBlock127) {
    EXPECT_TRUE(link.Transact(*DccFunctions(0, 127, {}, kShort)));
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{40, 127, 0, 3}}));
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST(MccSpeedCodes, CountFullStepsFrom16InSteps15) {
    for (int speed = 0; speed <= 15; ++speed) {
        EXPECT_EQ(MccSpeedCode(speed, 15), 16 + speed) << "speed " << speed;
    }
}

TEST(MccSpeedCodes, AlternateHalfAndFullStepsInSteps30) {
    const std::vector<int> codes{16, 1, 17, 2,  18, 3,  19, 4,  20, 5,  21, 6,  22, 7,  23, 8,
                                 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31};
    for (int speed = 0; speed <= 30; ++speed) {
        EXPECT_EQ(MccSpeedCode(speed, 30), codes[static_cast<std::size_t>(speed)])
            << "speed " << speed;
    }
}

TEST(MccSpeedCodes, TakeOnlyAMaximumOf30ForSteps30) {
    EXPECT_EQ(MccSpeedCode(1, 29), 17);
    EXPECT_EQ(MccSpeedCode(1, 30), 1);
    EXPECT_EQ(MccSpeedCode(1, 31), 17);
}

}  // namespace
}  // namespace zelvar::testing
