// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/reports.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using UnitCommands = UnitFixture;

TEST_F(UnitCommands, ConfigurationTravelsInTwoHalves) {
    EXPECT_EQ(Ask({1, 6, 0x05, 0x03}), Payload{});
    EXPECT_EQ(Listed("configuration.active"), std::to_string(0x35));
    EXPECT_EQ(Ask({1, 14, 0, 0}), (Payload{1, 14, 0x05, 0x03}));
    EXPECT_EQ(Ask({1, 15, 0, 0}), (Payload{1, 15, 0, 0}));
}

TEST_F(UnitCommands, APermanentConfigurationHoldsAfterAReboot) {
    Ask({1, 7, 1, 2});
    EXPECT_EQ(Ask({1, 14, 0, 0}), (Payload{1, 14, 0, 0}));
    EXPECT_EQ(Ask({1, 15, 0, 0}), (Payload{1, 15, 1, 2}));
    unit_.Reboot(now_);
    EXPECT_EQ(Ask({1, 14, 0, 0}), (Payload{1, 14, 1, 2}));
}

TEST_F(UnitCommands, AGetIgnoresTheSwitchesItCarries) {
    EXPECT_EQ(Ask({1, 14, 15, 15}), (Payload{1, 14, 0, 0}));
}

TEST_F(UnitCommands, TheDeviceModeIsKeptApartFromTheSwitches) {
    Ask({1, 6, 5, 3});
    Ask({1, 6, 22, 0});
    EXPECT_EQ(Listed("device-mode.active"), "6");
    EXPECT_EQ(Listed("device-mode.permanent"), "0");
    EXPECT_EQ(Listed("configuration.active"), std::to_string(0x35));
    Ask({1, 7, 16 + 30, 0});  // the largest sum of the boxes
    EXPECT_EQ(Listed("device-mode.permanent"), "30");
}

TEST_F(UnitCommands, OptionsOutliveAReboot) {
    Ask({1, 5, 34});
    unit_.Reboot(now_);
    EXPECT_EQ(Listed("options"), "34");
}

class Transparent : public UnitFixture, public testing::WithParamInterface<int> {};

TEST_P(Transparent, IsAcknowledgedAndThenSilentUntilAReboot) {
    EXPECT_EQ(Ask({1, 5, GetParam()}), Payload{});
    EXPECT_EQ(Send({}), std::nullopt);
    EXPECT_EQ(Send({1, 2}), std::nullopt);
    EXPECT_EQ(Listed("transparent"), "1");
    EXPECT_EQ(Listed("options"), "0");
    EXPECT_EQ(Listed("passed-through"), "2");
    unit_.Reboot(now_);
    EXPECT_EQ(Poll(), Payload{});
}

INSTANTIATE_TEST_SUITE_P(Targets, Transparent, testing::Values(16, 32, 48));

TEST_F(UnitCommands, RebootEndsFaultHoldAndWaitingReports) {
    unit_.state().fault = true;
    unit_.state().hold = true;
    unit_.state().reports.Push(OvercurrentReport(1, true));
    unit_.Reboot(now_);
    EXPECT_EQ(*Send({}), Reply{});
}

TEST_F(UnitCommands, HfiIsTheSystems) {
    Ask({1, 1, 9});
    EXPECT_EQ(Listed("hfi"), "9");
}

}  // namespace
}  // namespace zelvar::sim
