// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <set>

#include "sim/unit/commands.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

struct RowCase {
    const char* name;
    Payload command;
    const char* row;
};

/// One command for each row of the tables, and those beside them that belong to another one.
const RowCase kRows[] = {
    {"Poll", {}, "poll"},
    {"FaultReset", {1, 0}, "fault-reset"},
    {"ProtocolVersion", {1, 2}, "protocol-version"},
    {"UnitType", {1, 10}, "unit-type"},
    {"ModuleStatus", {1, 11, 32}, "module-status"},
    {"DipSwitches", {1, 3, 0}, "table-dip-switches"},
    {"Present", {1, 3, 2}, "table-present"},
    {"Faults", {1, 3, 3}, "table-faults"},
    {"Types", {1, 3, 4}, "table-types"},
    {"PointModules", {1, 3, 6}, "table-point-modules"},
    {"FeedbackRequest", {96, 0}, "feedback-request"},
    {"LastFeedbackRequest", {127, 127}, "feedback-request"},
    {"TractionGet", {0, 37, 8, 2}, "traction-get"},
    {"TractionGetPermanent", {0, 37, 8, 66}, "traction-get"},
    {"TractionGetSecond", {0, 37, 24, 2}, "traction-get"},
    {"TractionSet", {0, 37, 8, 2, 100}, "traction-set"},
    {"TractionErase", {0, 37, 8, 64}, "traction-erase"},
    {"TractionEraseSecond", {0, 37, 24, 64}, "traction-erase"},
    {"PointsDefaultTime", {0, 81, 32, 20}, "points-set-default-time"},
    {"PointsDefaultTimePermanent", {0, 81, 96, 127}, "points-set-default-time"},
    {"PointsDeviceTime", {0, 81, 32, 63, 20}, "points-set-device-time"},
    {"PointsDevicePower", {0, 81, 104, 63, 2}, "points-set-device-power"},
    {"PointsErase", {0, 81, 64}, "points-erase"},
    {"PointsGetDefaultTime", {0, 81, 34}, "points-get-default-time"},
    {"PointsGetDevice", {0, 81, 98, 5}, "points-get-device"},
    {"UnitSet", {1, 6, 15, 15}, "unit-set-configuration"},
    {"UnitSetPermanent", {1, 7, 0, 0}, "unit-set-configuration"},
    {"UnitDeviceMode", {1, 6, 16, 0}, "unit-set-device-mode"},
    {"UnitDeviceModeAll", {1, 7, 46, 0}, "unit-set-device-mode"},
    {"UnitGet", {1, 14, 3, 5}, "unit-get-configuration"},
    {"UnitGetPermanent", {1, 15, 3, 5}, "unit-get-configuration"},
    {"TransparentChannel0", {1, 5, 16}, "transparent-channel-0"},
    {"TransparentChannel1", {1, 5, 32}, "transparent-channel-1"},
    {"TransparentBootLoader", {1, 5, 48}, "transparent-boot-loader"},
    {"Options", {1, 5, 34}, "unit-set-options"},
    {"AnalogSpeed", {35, 72, 76}, "analog-speed"},
    {"AnalogAcceleration", {34, 5, 76, 10}, "analog-speed"},
    {"AnalogLight", {33, 72, 16}, "analog-light"},
    {"Hfi", {1, 1, 15}, "set-hfi"},
    {"Dcc28", {41, 0, 106, 3}, "dcc-speed-28"},
    {"Dcc28Long", {40, 0, 106, 3, 0}, "dcc-speed-28"},
    {"Dcc126", {45, 0, 1, 127, 3}, "dcc-speed-126"},
    {"Dcc126Long", {44, 0, 0, 100, 3, 0}, "dcc-speed-126"},
    {"DccF0ToF4", {40, 127, 31, 3}, "dcc-f0-f4"},
    {"DccF0ToF4Long", {40, 127, 31, 104, 7}, "dcc-f0-f4"},
    {"DccF5ToF8", {40, 0, 63, 3}, "dcc-f5-f8"},
    {"DccF5ToF8Long", {40, 0, 48, 104, 7}, "dcc-f5-f8"},
    {"DccF9ToF12", {40, 0, 47, 3}, "dcc-f9-f12"},
    {"DccF9ToF12Long", {40, 0, 32, 104, 7}, "dcc-f9-f12"},
    {"DccF13ToF20", {44, 0, 5, 127, 3}, "dcc-f13-f20"},
    {"DccF13ToF20Long", {44, 0, 4, 0, 104, 7}, "dcc-f13-f20"},
    {"DccF21ToF28", {44, 0, 7, 127, 3}, "dcc-f21-f28"},
    {"DccF21ToF28Long", {44, 0, 6, 1, 104, 7}, "dcc-f21-f28"},
    {"MccSpeed", {6, 31, 127, 31, 7}, "mcc-speed"},
    {"MccFunctions", {7, 31, 127, 15, 15}, "mcc-functions"},
    {"Link", {59, 127, 3, 127}, "link"},
    {"LinkInverted", {58, 0, 6, 0}, "link"},
    {"Unlink", {57, 127, 0}, "unlink"},
    {"UnlinkUpAndClear", {56, 0, 6}, "unlink"},
    {"ClearBlock", {63, 1, 18}, "clear-block"},
    {"Point", {16, 5}, "point"},
    {"PointThrown", {23, 127}, "point"},
    {"PointOfModule", {0, 83, 25, 3}, "point-of-module"},
    {"SignalAspect", {0, 127, 68, 0, 1, 127, 11}, "signal-aspect"},
    {"Output", {27, 127, 63, 127}, "output"},
};

class CommandTable : public UnitFixture, public testing::WithParamInterface<RowCase> {};

TEST_P(CommandTable, FindsTheRow) {
    EXPECT_TRUE(CentralUnit::IsKnown(GetParam().command));
    EXPECT_EQ(CentralUnit::CommandName(GetParam().command), GetParam().row);
}

TEST_P(CommandTable, GetsExactlyOneReply) {
    EXPECT_TRUE(Send(GetParam().command).has_value());
    EXPECT_EQ(Listed("command." + std::string(GetParam().row)), "1");
}

TEST_P(CommandTable, DoesNotTakeOneValueMoreForTheSameRow) {
    Payload longer = GetParam().command;
    if (longer.size() == kMaxDataBytes) {
        return;
    }
    longer.Append(1);
    const CommandRow* const row = FindCommand(GetParam().command);
    EXPECT_FALSE(row->pattern.Matches(longer));
}

INSTANTIATE_TEST_SUITE_P(Rows, CommandTable, testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

TEST(CommandTables, EveryRowHasItsTest) {
    std::set<const CommandRow*> tested;
    for (const RowCase& row : kRows) {
        tested.insert(FindCommand(row.command));
    }
    for (const auto table : CommandTables()) {
        for (const CommandRow& row : table) {
            EXPECT_EQ(tested.count(&row), 1U) << row.name;
        }
    }
}

/// Rows in front of more general ones, which would take their commands too.
bool IsSpecialCase(std::string_view name) {
    return name == "traction-erase" || name == "unit-set-configuration" ||
           name.starts_with("transparent-");
}

TEST(CommandTables, NoOtherCommandFitsTwoRows) {
    for (const RowCase& example : kRows) {
        int fitting = 0;
        for (const auto table : CommandTables()) {
            for (const CommandRow& row : table) {
                fitting += row.pattern.Matches(example.command) ? 1 : 0;
            }
        }
        EXPECT_EQ(fitting, IsSpecialCase(example.row) ? 2 : 1) << example.name;
    }
}

TEST(CommandTables, WhatNoRowFitsIsUnknown) {
    for (const Payload& command :
         {Payload{0}, Payload{1}, Payload{1, 3}, Payload{2, 2}, Payload{95, 0}, Payload{1, 3, 5},
          Payload{0, 31, 8, 1}, Payload{0, 32, 9, 1}, Payload{0, 64, 33}, Payload{62, 0, 17},
          Payload{8, 0, 0, 0, 0}, Payload{0, 96, 68, 0, 2, 0, 0}}) {
        EXPECT_FALSE(CentralUnit::IsKnown(command)) << testing::PrintToString(command);
        EXPECT_EQ(CentralUnit::CommandName(command), "");
    }
}

}  // namespace
}  // namespace zelvar::sim
