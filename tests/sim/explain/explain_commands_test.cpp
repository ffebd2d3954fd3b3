// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <set>

#include "sim/explain/explain.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

TEST(CommandWordsTest, EveryCommandOfTheUnitHasWords) {
    for (const auto table : CommandTables()) {
        for (const CommandRow& row : table) {
            EXPECT_NE(FindWords(row.name), nullptr) << row.name;
        }
    }
}

TEST(CommandWordsTest, NoWordsAreForACommandThatTheUnitDoesNotHave) {
    std::set<std::string_view> names;
    for (const auto table : CommandTables()) {
        for (const CommandRow& row : table) {
            names.insert(row.name);
        }
    }
    for (const auto table :
         {StatusWords(), ModuleWords(), UnitWords(), DriveWords(), AccessoryWords()}) {
        for (const CommandWords& words : table) {
            EXPECT_TRUE(names.erase(words.name) == 1) << words.name;
        }
    }
    EXPECT_TRUE(names.empty());
}

struct WordsCase {
    const char* name;
    Payload command;
    const char* words;
};

class CommandMeaning : public testing::TestWithParam<WordsCase> {};

TEST_P(CommandMeaning, IsToldInWords) {
    EXPECT_EQ(ExplainCommandData(GetParam().command), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Unit, CommandMeaning,
    testing::Values(
        WordsCase{"Poll", {}, "poll"}, WordsCase{"FaultReset", {1, 0}, "reset the fault"},
        WordsCase{"Protocol", {1, 2}, "ask for the protocol version"},
        WordsCase{"UnitType", {1, 10}, "ask for the central unit's type and version"},
        WordsCase{"Traction", {1, 11, 51}, "ask for the status of traction module 19"},
        WordsCase{
            "Second", {1, 11, 19}, "ask for the status of the second unit of traction module 19"},
        WordsCase{"PointModule", {1, 11, 81}, "ask for the status of point module 9"},
        WordsCase{"SignalModule", {1, 11, 114}, "ask for the status of signal module 18"},
        WordsCase{"DipSwitches", {1, 3, 0}, "ask for the table of DIP switches"},
        WordsCase{"Present", {1, 3, 2}, "ask for the table of traction modules that are there"},
        WordsCase{"Faulty", {1, 3, 3}, "ask for the table of traction modules in fault"},
        WordsCase{"Types", {1, 3, 4}, "ask for the table of traction module types"},
        WordsCase{"Points", {1, 3, 6}, "ask for the table of point modules that are there"},
        WordsCase{"Feedback", {97, 72}, "ask for feedback input 200"},
        WordsCase{"Configuration",
                  {1, 6, 5, 3},
                  "set the active configuration of the central unit: channel 1 at 38k4, channel 0 "
                  "active, GW70 retransmission, 64 devices per point module"},
        WordsCase{"NoConfiguration",
                  {1, 7, 0, 0},
                  "set the permanent configuration of the central unit: none"},
        WordsCase{
            "DeviceMode", {1, 6, 22, 0}, "set the active 64-device mode of the point modules: 6"},
        WordsCase{"GetConfiguration",
                  {1, 15, 0, 0},
                  "ask for the permanent configuration of the central unit"},
        WordsCase{"Options", {1, 5, 34}, "set the options of the central unit: Ret.Report, VD-Ch0"},
        WordsCase{"Transparent0", {1, 5, 16}, "switch to transparent mode: channel 0"},
        WordsCase{"Transparent1", {1, 5, 32}, "switch to transparent mode: channel 1"},
        WordsCase{"BootLoader", {1, 5, 48}, "switch to transparent mode: boot loader"},
        WordsCase{"Unknown", {1, 99, 3}, "unknown command, values 1, 99, 3"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Modules, CommandMeaning,
    testing::Values(
        WordsCase{"Erase", {0, 37, 8, 64}, "erase all settings of traction module 5"},
        WordsCase{
            "GetAlarm", {0, 37, 8, 2}, "ask for the active alarm off-delay of traction module 5"},
        WordsCase{"GetOfSecond",
                  {0, 37, 24, 65},
                  "ask for the permanent HFI level of the second unit of traction module 5"},
        WordsCase{"GetClock",
                  {0, 37, 8, 15},
                  "ask for the active clock state (in a QLRX-s: module address) of traction module "
                  "5"},
        WordsCase{"GetClockOfSecond",
                  {0, 37, 24, 15},
                  "ask for the active clock state of the second unit of traction module 5"},
        WordsCase{"GetAddress",
                  {0, 37, 8, 79},
                  "ask for the permanent module address of traction module 5"},
        WordsCase{"SetNumber",
                  {0, 37, 8, 9, 16},
                  "set the active PWM multiplier of traction "
                  "module 5 to 16"},
        WordsCase{"SetMaster",
                  {0, 37, 8, 75, 1},
                  "set the permanent master/slave mode of traction "
                  "module 5 to master"},
        WordsCase{"SetDetection",
                  {0, 37, 8, 10, 2},
                  "set the active overcurrent detection of "
                  "traction module 5 to slow"},
        WordsCase{"SetPowerControl",
                  {0, 37, 8, 12, 1},
                  "set the active power control of traction "
                  "module 5 to double"},
        WordsCase{"SetStrangeMode",
                  {0, 37, 8, 11, 9},
                  "set the active master/slave mode of "
                  "traction module 5 to 9"},
        WordsCase{"SetStrange",
                  {0, 37, 8, 40, 9},
                  "set the active setting 40 of traction module "
                  "5 to 9"},
        WordsCase{"DefaultTime",
                  {0, 81, 96, 127},
                  "set the permanent default time of point "
                  "module 9 to 127/60 s"},
        WordsCase{"DeviceTime",
                  {0, 81, 32, 63, 30},
                  "set the active time of device 63 of point "
                  "module 9 to 30/60 s"},
        WordsCase{"NoDeviceTime",
                  {0, 81, 32, 63, 0},
                  "set the active time of device 63 of point "
                  "module 9 to the default"},
        WordsCase{"DevicePower",
                  {0, 81, 104, 63, 2},
                  "set the permanent power of device 63 of "
                  "point module 9 to high"},
        WordsCase{"ErasePoints", {0, 81, 64}, "erase all settings of point module 9"},
        WordsCase{
            "GetDefaultTime", {0, 81, 34}, "ask for the active default time of point module 9"},
        WordsCase{"GetDevice",
                  {0, 81, 98, 3},
                  "ask for the permanent time and power of device 3 of point module 9"},
        WordsCase{
            "NoPointModule", {0, 72, 64}, "erase all settings of no point module (address 72)"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Drive, CommandMeaning,
    testing::Values(
        WordsCase{"Analog", {34, 5, 76}, "analog speed: block 5, speed 12 forward"},
        WordsCase{"AnalogRamp",
                  {35, 72, 12, 10},
                  "analog speed: block 200, speed 12 reverse, acceleration 10"},
        WordsCase{"LightOn", {33, 1, 16}, "analog light: block 129, on"},
        WordsCase{"LightOff", {32, 1, 0}, "analog light: block 1, off"},
        WordsCase{"Hfi", {1, 1, 15}, "set the system's HFI level to 15"},
        WordsCase{
            "Dcc28", {40, 0, 106, 3}, "DCC speed: block 0, decoder 3, speed 10 of 28 forward"},
        WordsCase{"DccLong",
                  {41, 2, 74, 104, 7},
                  "DCC speed: block 130, decoder 1000 (long address), speed 10 of 28 reverse"},
        WordsCase{
            "DccStop", {40, 0, 127, 3}, "DCC speed: block 0, decoder 3, emergency stop, forward"},
        WordsCase{"Dcc126",
                  {44, 0, 0, 100, 3},
                  "DCC speed: block 0, decoder 3, speed 100 of 126 reverse"},
        WordsCase{"Dcc126Stop",
                  {44, 0, 1, 127, 3, 0},
                  "DCC speed: block 0, decoder 3 (long address), emergency stop, forward"},
        WordsCase{"F0ToF4",
                  {40, 5, 25, 3},
                  "DCC functions F0..F4: block 5, decoder 3, on: F0 (light), F1, F4"},
        WordsCase{"F5ToF8", {40, 5, 56, 3}, "DCC functions F5..F8: block 5, decoder 3, on: F8"},
        WordsCase{"F9ToF12", {40, 5, 32, 3}, "DCC functions F9..F12: block 5, decoder 3, on: none"},
        WordsCase{"F13ToF20",
                  {44, 5, 5, 1, 3},
                  "DCC functions F13..F20: block 5, decoder 3, on: F13, F20"},
        WordsCase{"F21ToF28",
                  {44, 5, 7, 0, 104, 7},
                  "DCC functions F21..F28: block 5, decoder 1000 (long address), on: F28"},
        WordsCase{"Mcc", {6, 1, 2, 18, 7}, "MCC speed: decoder 130, speed 2 of 15, acceleration 7"},
        WordsCase{
            "MccHalf", {6, 0, 2, 2, 0}, "MCC speed: decoder 2, speed 1.5 of 15, acceleration 0"},
        WordsCase{"MccStand",
                  {6, 0, 2, 16, 0},
                  "MCC speed: decoder 2, speed 0 of 15, acceleration "
                  "0"},
        WordsCase{
            "MccStop", {6, 0, 2, 0, 0}, "MCC speed: decoder 2, emergency stop, acceleration 0"},
        WordsCase{
            "MccFunctions", {7, 0, 2, 9, 1}, "MCC functions: decoder 2, on: light, right, F1"},
        WordsCase{"Link", {58, 3, 2, 4}, "link blocks 3 and 4"},
        WordsCase{"LinkInverted", {59, 2, 7, 72}, "link blocks 130 and 200, inverted"},
        WordsCase{"UnlinkUp", {56, 10, 6}, "unlink block 10 up, clear the blocks unlinked"},
        WordsCase{"UnlinkDown", {56, 10, 0}, "unlink block 10 down"},
        WordsCase{"ClearBlock", {63, 1, 18}, "clear block 129"},
        WordsCase{"Point", {22, 44}, "point 300: thrown"},
        WordsCase{"PointStraight", {16, 5}, "point 5: straight"},
        WordsCase{"PointOfModule", {0, 83, 25, 3}, "point module 11, device 3: thrown"},
        WordsCase{"Signal", {0, 98, 68, 0, 1, 10, 3}, "signal module 2, pin 10: aspect 3"},
        WordsCase{"Output", {26, 44, 5, 100}, "output 300: instruction 5, parameter 100"}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::sim
