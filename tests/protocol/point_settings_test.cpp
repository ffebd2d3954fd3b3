// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/point_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zelvar {
namespace {

struct CommandCase {
    const char* name;
    ModuleCommand command;
    /// What module 9 receives.
    std::vector<int> values;
};

class JsCommand : public ::testing::TestWithParam<CommandCase> {};

TEST_P(JsCommand, ReachesModuleNineToTheByte) {
    const Command command = CommandForJs(GetParam().command, 9);
    const std::vector<int> sent(command.values.begin(), command.values.begin() + command.count);
    EXPECT_EQ(GetParam().command.target, 64);
    EXPECT_EQ(sent, GetParam().values);
}

INSTANTIATE_TEST_SUITE_P(
    OfEveryKind, JsCommand,
    ::testing::Values(
        CommandCase{"DefaultTime", JsDefaultTime(false, 30), {0, 81, 32, 30}},
        CommandCase{"DefaultTimePermanent", JsDefaultTime(true, 127), {0, 81, 96, 127}},
        CommandCase{"DeviceTime", JsDeviceTime(false, 63, 0), {0, 81, 32, 63, 0}},
        CommandCase{"DeviceTimePermanent", JsDeviceTime(true, 0, 127), {0, 81, 96, 0, 127}},
        CommandCase{"DevicePower", JsDevicePower(false, 63, 2), {0, 81, 40, 63, 2}},
        CommandCase{"DevicePowerPermanent", JsDevicePower(true, 63, 3), {0, 81, 104, 63, 3}},
        CommandCase{"Erase", kJsErase, {0, 81, 64}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar
