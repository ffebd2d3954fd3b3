// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <set>

#include "sim/unit/commands.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

struct RowCase {
    Payload command;
    const char* row;
    const char* words;
};

/// Commands of each row, also those at its limits and beside other rows, and what they say.
const RowCase kRows[] = {
    {{}, "poll", "poll"},
    {{1, 0}, "fault-reset", "reset the fault"},
    {{1, 2}, "protocol-version", "ask for the protocol version"},
    {{1, 10}, "unit-type", "ask for the central unit's type and version"},
    {{1, 11, 51}, "module-status", "ask for the status of traction module 19"},
    {{1, 11, 19}, "module-status", "ask for the status of the second unit of traction module 19"},
    {{1, 11, 81}, "module-status", "ask for the status of point module 9"},
    {{1, 11, 114}, "module-status", "ask for the status of signal module 18"},
    {{1, 3, 0}, "table-dip-switches", "ask for the table of DIP switches"},
    {{1, 3, 2}, "table-present", "ask for the table of traction modules that are there"},
    {{1, 3, 3}, "table-faults", "ask for the table of traction modules in fault"},
    {{1, 3, 4}, "table-types", "ask for the table of traction module types"},
    {{1, 3, 6}, "table-point-modules", "ask for the table of point modules that are there"},
    {{96, 0}, "feedback-request", "ask for feedback input 0"},
    {{127, 127}, "feedback-request", "ask for feedback input 4095"},
    {{0, 37, 8, 64}, "traction-erase", "erase all settings of traction module 5"},
    {{0, 37, 24, 64},
     "traction-erase",
     "erase all settings of the second unit of traction module 5"},
    {{0, 37, 8, 2}, "traction-get", "ask for the active alarm off-delay of traction module 5"},
    {{0, 37, 8, 66}, "traction-get", "ask for the permanent alarm off-delay of traction module 5"},
    {{0, 37, 24, 65},
     "traction-get",
     "ask for the permanent HFI level of the second unit of traction module 5"},
    {{0, 37, 8, 15},
     "traction-get",
     "ask for the active clock state (in a QLRX-s: module address) of traction module 5"},
    {{0, 37, 24, 15},
     "traction-get",
     "ask for the active clock state of the second unit of traction module 5"},
    {{0, 37, 8, 79}, "traction-get", "ask for the permanent module address of traction module 5"},
    {{0, 37, 8, 2, 100},
     "traction-set",
     "set the active alarm off-delay of traction module 5 to 100"},
    {{0, 37, 8, 9, 16}, "traction-set", "set the active PWM multiplier of traction module 5 to 16"},
    {{0, 37, 8, 75, 1},
     "traction-set",
     "set the permanent master/slave mode of traction module 5 to master"},
    {{0, 37, 8, 10, 2},
     "traction-set",
     "set the active overcurrent detection of traction module 5 to slow"},
    {{0, 37, 8, 12, 1},
     "traction-set",
     "set the active power control of traction module 5 to double"},
    {{0, 37, 8, 11, 9},
     "traction-set",
     "set the active master/slave mode of traction module 5 to 9"},
    {{0, 37, 8, 40, 9}, "traction-set", "set the active setting 40 of traction module 5 to 9"},
    {{0, 81, 32, 20},
     "points-set-default-time",
     "set the active default time of point module 9 to 20/60 s"},
    {{0, 81, 96, 127},
     "points-set-default-time",
     "set the permanent default time of point module 9 to 127/60 s"},
    {{0, 81, 32, 63, 20},
     "points-set-device-time",
     "set the active time of device 63 of point module 9 to 20/60 s"},
    {{0, 81, 32, 63, 0},
     "points-set-device-time",
     "set the active time of device 63 of point module 9 to the default"},
    {{0, 81, 104, 63, 2},
     "points-set-device-power",
     "set the permanent power of device 63 of point module 9 to high"},
    {{0, 81, 64}, "points-erase", "erase all settings of point module 9"},
    {{0, 72, 64}, "points-erase", "erase all settings of no point module (address 72)"},
    {{0, 81, 34}, "points-get-default-time", "ask for the active default time of point module 9"},
    {{0, 81, 98, 3},
     "points-get-device",
     "ask for the permanent time and power of device 3 of point module 9"},
    {{1, 6, 15, 15},
     "unit-set-configuration",
     "set the active configuration of the central unit: channel 1 at 38k4, channel 0 at 38k4, "
     "channel 0 active, GW70 native addressing, GW70 retransmission, 64 devices per point module, "
     "fixed DCC address 3, switch 7"},
    {{1, 7, 0, 0},
     "unit-set-configuration",
     "set the permanent configuration of the central unit: none"},
    {{1, 6, 5, 3},
     "unit-set-configuration",
     "set the active configuration of the central unit: channel 1 at 38k4, channel 0 active, GW70 "
     "retransmission, 64 devices per point module"},
    {{1, 6, 16, 0},
     "unit-set-device-mode",
     "set the active 64-device mode of the point modules: 0"},
    {{1, 7, 46, 0},
     "unit-set-device-mode",
     "set the permanent 64-device mode of the point modules: 30"},
    {{1, 14, 3, 5},
     "unit-get-configuration",
     "ask for the active configuration of the central unit"},
    {{1, 15, 3, 5},
     "unit-get-configuration",
     "ask for the permanent configuration of the central unit"},
    {{1, 5, 16}, "transparent-channel-0", "switch to transparent mode: channel 0"},
    {{1, 5, 32}, "transparent-channel-1", "switch to transparent mode: channel 1"},
    {{1, 5, 48}, "transparent-boot-loader", "switch to transparent mode: boot loader"},
    {{1, 5, 34}, "unit-set-options", "set the options of the central unit: Ret.Report, VD-Ch0"},
    {{35, 72, 76}, "analog-speed", "analog speed: block 200, speed 12 forward"},
    {{34, 5, 76}, "analog-speed", "analog speed: block 5, speed 12 forward"},
    {{35, 72, 12, 10},
     "analog-speed",
     "analog speed: block 200, speed 12 reverse, acceleration 10"},
    {{33, 1, 16}, "analog-light", "analog light: block 129, on"},
    {{32, 1, 0}, "analog-light", "analog light: block 1, off"},
    {{1, 1, 15}, "set-hfi", "set the system's HFI level to 15"},
    {{40, 0, 106, 3}, "dcc-speed-28", "DCC speed: block 0, decoder 3, speed 10 of 28 forward"},
    {{40, 0, 127, 3}, "dcc-speed-28", "DCC speed: block 0, decoder 3, emergency stop, forward"},
    {{41, 2, 74, 104, 7},
     "dcc-speed-28",
     "DCC speed: block 130, decoder 1000 (long address), speed 10 of 28 reverse"},
    {{44, 0, 0, 100, 3},
     "dcc-speed-126",
     "DCC speed: block 0, decoder 3, speed 100 of 126 reverse"},
    {{44, 0, 1, 127, 3, 0},
     "dcc-speed-126",
     "DCC speed: block 0, decoder 3 (long address), emergency stop, forward"},
    {{40, 127, 31, 3},
     "dcc-f0-f4",
     "DCC functions F0..F4: block 127, decoder 3, on: F0 (light), F1, F2, F3, F4"},
    {{40, 5, 25, 3},
     "dcc-f0-f4",
     "DCC functions F0..F4: block 5, decoder 3, on: F0 (light), F1, F4"},
    {{40, 127, 31, 104, 7},
     "dcc-f0-f4",
     "DCC functions F0..F4: block 127, decoder 1000 (long address), on: F0 (light), F1, F2, F3, "
     "F4"},
    {{40, 0, 63, 3}, "dcc-f5-f8", "DCC functions F5..F8: block 0, decoder 3, on: F5, F6, F7, F8"},
    {{40, 5, 56, 3}, "dcc-f5-f8", "DCC functions F5..F8: block 5, decoder 3, on: F8"},
    {{40, 0, 48, 104, 7},
     "dcc-f5-f8",
     "DCC functions F5..F8: block 0, decoder 1000 (long address), on: none"},
    {{40, 0, 47, 3},
     "dcc-f9-f12",
     "DCC functions F9..F12: block 0, decoder 3, on: F9, F10, F11, F12"},
    {{40, 5, 32, 3}, "dcc-f9-f12", "DCC functions F9..F12: block 5, decoder 3, on: none"},
    {{40, 0, 32, 104, 7},
     "dcc-f9-f12",
     "DCC functions F9..F12: block 0, decoder 1000 (long address), on: none"},
    {{44, 0, 5, 127, 3},
     "dcc-f13-f20",
     "DCC functions F13..F20: block 0, decoder 3, on: F13, F14, F15, F16, F17, F18, F19, F20"},
    {{44, 5, 5, 1, 3}, "dcc-f13-f20", "DCC functions F13..F20: block 5, decoder 3, on: F13, F20"},
    {{44, 0, 4, 0, 104, 7},
     "dcc-f13-f20",
     "DCC functions F13..F20: block 0, decoder 1000 (long address), on: none"},
    {{44, 0, 7, 127, 3},
     "dcc-f21-f28",
     "DCC functions F21..F28: block 0, decoder 3, on: F21, F22, F23, F24, F25, F26, F27, F28"},
    {{44, 5, 7, 0, 104, 7},
     "dcc-f21-f28",
     "DCC functions F21..F28: block 5, decoder 1000 (long address), on: F28"},
    {{6, 31, 127, 31, 7}, "mcc-speed", "MCC speed: decoder 4095, speed 15 of 15, acceleration 7"},
    {{6, 0, 2, 2, 0}, "mcc-speed", "MCC speed: decoder 2, speed 1.5 of 15, acceleration 0"},
    {{6, 0, 2, 16, 0}, "mcc-speed", "MCC speed: decoder 2, speed 0 of 15, acceleration 0"},
    {{6, 0, 2, 0, 0}, "mcc-speed", "MCC speed: decoder 2, emergency stop, acceleration 0"},
    {{7, 31, 127, 15, 15},
     "mcc-functions",
     "MCC functions: decoder 4095, on: light, brake, left, right, F1, F2, F3, F4"},
    {{7, 0, 2, 9, 1}, "mcc-functions", "MCC functions: decoder 2, on: light, right, F1"},
    {{59, 127, 3, 127}, "link", "link blocks 255 and 255"},
    {{59, 2, 7, 72}, "link", "link blocks 130 and 200, inverted"},
    {{57, 127, 0}, "unlink", "unlink block 255 down"},
    {{56, 10, 6}, "unlink", "unlink block 10 up, clear the blocks unlinked"},
    {{56, 10, 0}, "unlink", "unlink block 10 down"},
    {{63, 1, 18}, "clear-block", "clear block 129"},
    {{16, 5}, "point", "point 5: straight"},
    {{23, 127}, "point", "point 511: thrown"},
    {{22, 44}, "point", "point 300: thrown"},
    {{0, 83, 25, 3}, "point-of-module", "point module 11, device 3: thrown"},
    {{0, 127, 68, 0, 1, 127, 11}, "signal-aspect", "signal module 31, pin 127: aspect 11"},
    {{0, 98, 68, 0, 1, 10, 3}, "signal-aspect", "signal module 2, pin 10: aspect 3"},
    {{27, 127, 63, 127}, "output", "output 511: instruction 63, parameter 127"},
    {{26, 44, 5, 100}, "output", "output 300: instruction 5, parameter 100"},
};

using CommandTable = UnitFixture;

TEST_F(CommandTable, HasOneRowForEachCommand) {
    for (const RowCase& row : kRows) {
        SCOPED_TRACE(row.words);
        EXPECT_TRUE(CentralUnit::IsKnown(row.command));
        EXPECT_EQ(CentralUnit::CommandName(row.command), row.row);
    }
}

TEST_F(CommandTable, HasTheWordsForEachCommand) {
    for (const RowCase& row : kRows) {
        EXPECT_EQ(FindCommand(row.command)->words.In(row.command, {}), row.words);
    }
}

TEST_F(CommandTable, EachCommandGetsOneReplyAndIsCounted) {
    for (const RowCase& row : kRows) {
        SCOPED_TRACE(row.words);
        unit_ = CentralUnit(MixedLayout());
        EXPECT_TRUE(Send(row.command).has_value());
        EXPECT_EQ(Listed("command." + std::string(row.row)), "1");
    }
}

TEST_F(CommandTable, OneValueMoreIsNoCommandOfTheSameRowUnlessItMayFollow) {
    for (const RowCase& row : kRows) {
        const std::string name = row.row;
        const bool mayFollow = name == "analog-speed" || name.starts_with("dcc-");
        Payload longer = row.command;
        longer.Append(1);
        if (longer == row.command) {
            continue;  // as long as a frame can be
        }
        const bool isShort =
            std::any_of(std::begin(kRows), std::end(kRows), [&](const auto& other) {
                return name == other.row && other.command.size() == longer.size();
            });
        EXPECT_EQ(FindCommand(row.command)->pattern.Matches(longer), mayFollow && isShort)
            << row.words;
    }
}

TEST_F(CommandTable, EveryRowHasItsTestAndCompleteWords) {
    std::set<const CommandRow*> tested;
    for (const RowCase& row : kRows) {
        tested.insert(FindCommand(row.command));
    }
    for (const auto table : CommandTables()) {
        for (const CommandRow& row : table) {
            EXPECT_EQ(tested.count(&row), 1U) << row.name;
            EXPECT_TRUE(row.words.IsComplete()) << row.name;
        }
    }
}

/// Rows before more general ones, which would take their commands too.
bool IsSpecialCase(std::string_view name) {
    return name == "traction-erase" || name == "unit-set-configuration" ||
           name.starts_with("transparent-");
}

TEST_F(CommandTable, HasNoOtherCommandThatFitsTwoRows) {
    for (const RowCase& example : kRows) {
        int fitting = 0;
        for (const auto table : CommandTables()) {
            for (const CommandRow& row : table) {
                fitting += row.pattern.Matches(example.command) ? 1 : 0;
            }
        }
        EXPECT_EQ(fitting, IsSpecialCase(example.row) ? 2 : 1) << example.words;
    }
}

TEST_F(CommandTable, WhatNoRowFitsIsUnknown) {
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
