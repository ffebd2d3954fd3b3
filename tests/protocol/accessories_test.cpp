// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/accessories.h"

#include <gtest/gtest.h>

#include "protocol/command_case.h"

namespace zelvar::testing {
namespace {

class AccessoryCommands : public ::testing::TestWithParam<CommandCase> {};

TEST_P(AccessoryCommands, HasTheValuesOfTheTable) {
    EXPECT_EQ(ValuesOf(GetParam().command), GetParam().values);
}

const std::vector<CommandCase> kCases{
    {"Device0Straight", SetPoint(0, false), {16, 0}},
    {"Device5Straight", SetPoint(5, false), {16, 5}},
    {"Device127Thrown", SetPoint(127, true), {20, 127}},
    {"Device128Straight", SetPoint(128, false), {17, 0}},
    {"Device255Thrown", SetPoint(255, true), {21, 127}},
    {"Device300Thrown", SetPoint(300, true), {22, 44}},
    {"Device511Straight", SetPoint(511, false), {19, 127}},
    {"Device511Thrown", SetPoint(511, true), {23, 127}},
    {"Module0Straight", SetModulePoint(0, 0, false), {0, 64, 17, 0}},
    {"Module7Thrown", SetModulePoint(7, 63, true), {0, 71, 25, 63}},
    {"Module8Straight", SetModulePoint(8, 1, false), {0, 80, 17, 1}},
    {"Module11Thrown", SetModulePoint(11, 3, true), {0, 83, 25, 3}},
    {"Module15Thrown", SetModulePoint(15, 63, true), {0, 87, 25, 63}},
    {"SignalLowest", SetSignalAspect(0, 0, 0), {0, 96, 68, 0, 1, 0, 0}},
    {"SignalModule2", SetSignalAspect(2, 10, 3), {0, 98, 68, 0, 1, 10, 3}},
    {"SignalHighest", SetSignalAspect(31, 127, 11), {0, 127, 68, 0, 1, 127, 11}},
    {"OutputLowest", SetOutput(0, 0, 0), {24, 0, 0, 0}},
    {"Output127", SetOutput(127, 1, 2), {24, 127, 1, 2}},
    {"Output128", SetOutput(128, 63, 127), {25, 0, 63, 127}},
    {"Output300", SetOutput(300, 5, 100), {26, 44, 5, 100}},
    {"Output511", SetOutput(511, 63, 127), {27, 127, 63, 127}},
};
INSTANTIATE_TEST_SUITE_P(All, AccessoryCommands, ::testing::ValuesIn(kCases), CaseName);

}  // namespace
}  // namespace zelvar::testing
