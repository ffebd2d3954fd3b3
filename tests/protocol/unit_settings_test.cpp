// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/unit_settings.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "config/config_fixture.h"

namespace zelvar::testing {
namespace {

KBSwitches Ticked(std::initializer_list<int> indexes) {
    KBSwitches switches{};
    for (const int index : indexes) {
        switches[static_cast<std::size_t>(index)] = true;
    }
    return switches;
}

std::vector<int> SentOf(const Command& command) {
    return {command.values.begin(), command.values.begin() + command.count};
}

struct UnitCase {
    const char* name;
    ModuleCommand command;
    std::vector<int> values;
};

class UnitCommand : public ::testing::TestWithParam<UnitCase> {};

TEST_P(UnitCommand, ReachesTheUnitToTheByte) {
    EXPECT_EQ(GetParam().command.target, 128);
    EXPECT_EQ(SentOf(CommandForUnit(GetParam().command)), GetParam().values);
}

const KBSwitches kAll = Ticked({0, 1, 2, 3, 4, 5, 6, 7});

INSTANTIATE_TEST_SUITE_P(
    OfConfiguration, UnitCommand,
    ::testing::Values(
        UnitCase{"SetSwitch5", KBConfigCommand(0, false, Ticked({5})), {1, 6, 0, 2}},
        UnitCase{"SetAll", KBConfigCommand(0, false, kAll), {1, 6, 15, 15}},
        UnitCase{"SetPermanent", KBConfigCommand(0, true, Ticked({0, 7})), {1, 7, 1, 8}},
        UnitCase{"Get", KBConfigCommand(1, false, Ticked({})), {1, 14, 0, 0}},
        UnitCase{"GetPermanent", KBConfigCommand(1, true, Ticked({3})), {1, 15, 8, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    OfOptions, UnitCommand,
    ::testing::Values(
        UnitCase{"ReturnReportAndVDChannel0", KBOptionsCommand(Ticked({1, 5})), {1, 5, 34}},
        UnitCase{"None", KBOptionsCommand(Ticked({})), {1, 5, 0}},
        UnitCase{"AllThatFit", KBOptionsCommand(Ticked({0, 1, 2, 3, 4, 5, 6})), {1, 5, 127}}),
    [](const auto& row) { return std::string(row.param.name); });

// Boxes i and i + 4 weigh the same and their sum carries.
INSTANTIATE_TEST_SUITE_P(
    Of64DeviceMode, UnitCommand,
    ::testing::Values(
        UnitCase{"Boxes1And6", Js64DeviceModeCommand(false, Ticked({1, 6})), {1, 6, 22, 0}},
        UnitCase{"Box1Alone", Js64DeviceModeCommand(false, Ticked({1})), {1, 6, 18, 0}},
        UnitCase{"Boxes0And4Carry", Js64DeviceModeCommand(false, Ticked({0, 4})), {1, 6, 18, 0}},
        UnitCase{"Boxes3And7Carry", Js64DeviceModeCommand(false, Ticked({3, 7})), {1, 6, 32, 0}},
        UnitCase{"AllPermanent", Js64DeviceModeCommand(true, kAll), {1, 7, 46, 0}},
        UnitCase{"None", Js64DeviceModeCommand(false, Ticked({})), {1, 6, 16, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(TransparentMode, IsOneOfThreeOptionBytes) {
    EXPECT_EQ(SentOf(TransparentModeCommand(0)), (std::vector<int>{1, 5, 16}));
    EXPECT_EQ(SentOf(TransparentModeCommand(1)), (std::vector<int>{1, 5, 32}));
    EXPECT_EQ(SentOf(TransparentModeCommand(2)), (std::vector<int>{1, 5, 48}));
}

TEST(KBConfigReply, TakesTheLowFourBitsOfBothHalves) {
    EXPECT_EQ(ReadKBConfigReply(MakeReply(0x0C, {1, 14, 0x25, 0x13})), Ticked({0, 2, 4, 5}));
    EXPECT_EQ(ReadKBConfigReply(MakeReply(0x0C, {1, 14, 0x70, 0x70})), Ticked({}));
    EXPECT_EQ(ReadKBConfigReply(MakeReply(0x0C, {1, 15, 0x0F, 0x0F})), kAll);
}

class KBOptionsTest : public ConfigFixture {};

TEST_F(KBOptionsTest, OptionSevenOverflowsAFrame) {
    ModuleCommands(services).SendModuleCommand(KBOptionsCommand(Ticked({7})));
    EXPECT_EQ(messageBox.shown,
              (std::vector<ShownBox>{{"Overflow", BoxIcon::Critical, BoxButtons::Ok}}));
    // Nothing of it went out whole, and no closing transaction follows.
    EXPECT_EQ(port.SentValues(), (Frames{{}}));
}

}  // namespace
}  // namespace zelvar::testing
