// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/drive.h"
#include "sim/unit/reports.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using std::chrono::milliseconds;

struct DriveCase {
    const char* name;
    std::vector<Payload> commands;
    const char* listed;
    const char* value;
};

class DriveCommand : public UnitFixture, public testing::WithParamInterface<DriveCase> {};

TEST_P(DriveCommand, ShowsInTheListing) {
    for (const Payload& command : GetParam().commands) {
        EXPECT_EQ(Ask(command), Payload{});
    }
    EXPECT_EQ(Listed(GetParam().listed), GetParam().value);
    EXPECT_EQ(Listed("unknown-commands"), "0");
}

INSTANTIATE_TEST_SUITE_P(
    Analog, DriveCommand,
    testing::Values(
        DriveCase{"SpeedForward",
                  {{34, 5, 76}},
                  "block.5",
                  "speed:12,direction:forward,target:12,light:0"},
        DriveCase{"SpeedReverseHighBlock",
                  {{35, 72, 63}},
                  "block.200",
                  "speed:63,direction:reverse,target:63,light:0"},
        DriveCase{"AcceleratingStartsAtZero",
                  {{34, 5, 76, 10}},
                  "block.5",
                  "speed:0,direction:forward,target:12,light:0"},
        DriveCase{
            "Light", {{33, 127, 16}}, "block.255", "speed:0,direction:forward,target:0,light:1"},
        DriveCase{"LightOff", {{32, 0, 16}, {32, 0, 0}}, "block.0", "none"},
        DriveCase{"Clear", {{35, 1, 20}, {33, 1, 16}, {63, 1, 18}}, "block.129", "none"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Dcc, DriveCommand,
    testing::Values(
        DriveCase{"Short28",
                  {{40, 0, 106, 3}},
                  "dcc.short.3",
                  "steps:28,speed:10,direction:forward,block:0,emergency-stop:0,functions:"},
        DriveCase{"Long28",
                  {{41, 127, 92, 104, 7}},
                  "dcc.long.1000",
                  "steps:28,speed:28,direction:reverse,block:255,emergency-stop:0,functions:"},
        DriveCase{"LongFormOfAShortAddress",
                  {{40, 0, 106, 3, 0}},
                  "dcc.long.3",
                  "steps:28,speed:10,direction:forward,block:0,emergency-stop:0,functions:"},
        DriveCase{"Short126",
                  {{44, 0, 0, 100, 3}},
                  "dcc.short.3",
                  "steps:126,speed:100,direction:reverse,block:0,emergency-stop:0,functions:"},
        DriveCase{"Long126",
                  {{45, 1, 1, 126, 127, 79}},
                  "dcc.long.10239",
                  "steps:126,speed:126,direction:forward,block:129,emergency-stop:0,functions:"},
        DriveCase{"EmergencyStop28",
                  {{40, 0, 106, 3}, {40, 0, 95, 3}},
                  "dcc.short.3",
                  "steps:28,speed:0,direction:reverse,block:0,emergency-stop:1,functions:"},
        DriveCase{"EmergencyStop126",
                  {{44, 0, 1, 100, 3}, {44, 0, 1, 127, 3}},
                  "dcc.short.3",
                  "steps:126,speed:0,direction:forward,block:0,emergency-stop:1,functions:"},
        DriveCase{"SpeedAfterTheEmergencyStop",
                  {{40, 0, 95, 3}, {40, 0, 65, 3}},
                  "dcc.short.3",
                  "steps:28,speed:1,direction:reverse,block:0,emergency-stop:0,functions:"},
        DriveCase{"ClearStopsTheDecoderInTheBlock",
                  {{40, 9, 74, 3}, {40, 9, 31, 3}, {62, 9, 18}},
                  "dcc.short.3",
                  "steps:28,speed:0,direction:forward,block:9,emergency-stop:0,functions:"},
        DriveCase{"ClearLeavesOtherBlocksAlone",
                  {{40, 8, 74, 3}, {62, 9, 18}},
                  "dcc.short.3",
                  "steps:28,speed:10,direction:reverse,block:8,emergency-stop:0,functions:"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Mcc, DriveCommand,
    testing::Values(DriveCase{"FifteenStepsFull",
                              {{6, 31, 127, 31, 0}},
                              "mcc.4095",
                              "half-steps:30,target:30,functions:0,emergency-stop:0"},
                    DriveCase{"SpeedZero",
                              {{6, 0, 5, 31, 0}, {6, 0, 5, 16, 0}},
                              "mcc.5",
                              "half-steps:0,target:0,functions:0,emergency-stop:0"},
                    DriveCase{"HalfStep",
                              {{6, 0, 5, 1, 0}},
                              "mcc.5",
                              "half-steps:1,target:1,functions:0,emergency-stop:0"},
                    DriveCase{"EmergencyStop",
                              {{6, 0, 5, 31, 0}, {6, 0, 5, 0, 0}},
                              "mcc.5",
                              "half-steps:0,target:0,functions:0,emergency-stop:1"},
                    DriveCase{"Functions",
                              {{7, 0, 5, 9, 6}},
                              "mcc.5",
                              "half-steps:0,target:0,functions:105,emergency-stop:0"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Accessories, DriveCommand,
    testing::Values(
        DriveCase{"PointThrown", {{22, 44}}, "point.300", "thrown"},
        DriveCase{"PointStraight", {{22, 44}, {18, 44}}, "point.300", "straight"},
        DriveCase{"LastPoint", {{23, 127}}, "point.511", "thrown"},
        DriveCase{"PointOfModuleThrown", {{0, 83, 25, 3}}, "point-of-module.11.3", "thrown"},
        DriveCase{"PointOfModuleStraight", {{0, 64, 17, 63}}, "point-of-module.0.63", "straight"},
        DriveCase{"Aspect", {{0, 98, 68, 0, 1, 10, 3}}, "aspect.2.10", "3"},
        DriveCase{"Output", {{26, 44, 5, 100}}, "output.300", "instruction:5,parameter:100"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Links, DriveCommand,
    testing::Values(
        DriveCase{"Straight", {{58, 3, 2, 4}}, "link.3.4", "straight"},
        DriveCase{"Inverted", {{59, 2, 7, 72}}, "link.130.200", "inverted"},
        DriveCase{"WithItself", {{58, 3, 2, 3}}, "link.3.3", "none"},
        DriveCase{"UnlinkUp", {{58, 3, 2, 4}, {56, 3, 4}}, "link.3.4", "none"},
        DriveCase{"UnlinkUpOfTheSecond", {{58, 3, 2, 4}, {56, 4, 4}}, "link.3.4", "straight"},
        DriveCase{"UnlinkDown", {{58, 3, 2, 4}, {56, 4, 0}}, "link.3.4", "none"},
        DriveCase{"UnlinkDownOfTheFirst", {{58, 3, 2, 4}, {56, 3, 0}}, "link.3.4", "straight"},
        DriveCase{"LinkedBlockFollows",
                  {{58, 3, 2, 4}, {34, 3, 76}},
                  "block.4",
                  "speed:12,direction:forward,target:12,light:0"},
        DriveCase{"LinkedBlockTakesTheSpeedOver",
                  {{34, 3, 76}, {58, 3, 2, 4}},
                  "block.4",
                  "speed:12,direction:forward,target:12,light:0"},
        DriveCase{"InvertedTwiceIsStraight",
                  {{58, 3, 6, 4}, {58, 4, 6, 5}, {34, 5, 76}},
                  "block.3",
                  "speed:12,direction:forward,target:12,light:0"},
        DriveCase{"InvertedTurnsRound",
                  {{58, 3, 6, 4}, {34, 3, 76}},
                  "block.4",
                  "speed:12,direction:reverse,target:12,light:0"},
        DriveCase{"UnlinkedGoesOn",
                  {{58, 3, 2, 4}, {34, 3, 76}, {56, 3, 4}},
                  "block.4",
                  "speed:12,direction:forward,target:12,light:0"},
        DriveCase{
            "UnlinkedAndCleared", {{58, 3, 2, 4}, {34, 3, 76}, {56, 3, 6}}, "block.4", "none"}),
    [](const auto& row) { return row.param.name; });

using DriveReports = UnitFixture;

TEST_F(DriveReports, EachFunctionBitSetsItsFunction) {
    const auto with = [](int function) -> Payload {
        if (function == 0) {
            return {40, 0, 16, 3};
        }
        const int index = function - 1;
        if (function <= 4) {
            return {40, 0, 1 << index, 3};
        }
        if (function <= 12) {
            return {40, 0, (function <= 8 ? 48 : 32) + (1 << index % 4), 3};
        }
        const int pattern = 1 << (function - (function <= 20 ? 13 : 21));
        return {44, 0, (function <= 20 ? 4 : 6) + pattern / 128, pattern % 128, 3};
    };
    for (int function = 0; function < kDccFunctions; ++function) {
        unit_.Reboot(now_);
        Ask(with(function));
        const std::string listed = Listed("dcc.short.3");
        EXPECT_TRUE(listed.ends_with("functions:" + std::to_string(function))) << listed;
    }
}

TEST_F(DriveReports, AFunctionGroupLeavesTheOthersAlone) {
    Ask({40, 0, 16 + 1, 3});
    Ask({40, 0, 48 + 8, 3});
    Ask({44, 0, 7, 0, 3});
    Ask({40, 0, 0, 3});
    EXPECT_TRUE(Listed("dcc.short.3").ends_with("functions:8+28"));
}

TEST_F(DriveReports, LongFunctionCommandsReachTheLongAddress) {
    Ask({40, 0, 1, 104, 7});
    Ask({44, 0, 4, 1, 104, 7});
    EXPECT_TRUE(Listed("dcc.long.1000").ends_with("functions:1+13"));
}

TEST_F(DriveReports, ANewSpeedIsReportedWithTheNextPoll) {
    Ask({34, 5, 76});
    EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(5, 12, true)}));
    Ask({34, 5, 76});
    EXPECT_EQ(PollAll(), std::vector<Payload>{});
    Ask({34, 5, 12});
    EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(5, 12, false)}));
}

TEST_F(DriveReports, AcceleratingIsReportedStepByStep) {
    Ask({34, 5, 64 + 3, 10});  // a step each 100 ms
    EXPECT_EQ(PollAll(), std::vector<Payload>{});
    for (int speed = 1; speed <= 3; ++speed) {
        Wait(milliseconds(99));
        EXPECT_EQ(PollAll(), std::vector<Payload>{}) << speed;
        Wait(milliseconds(1));
        EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(5, speed, true)}));
    }
    Wait(milliseconds(1000));
    EXPECT_EQ(PollAll(), std::vector<Payload>{});
}

TEST_F(DriveReports, OnlyTheLatestSpeedWaitsForAPoll) {
    Ask({34, 5, 64 + 30, 1});
    Wait(milliseconds(50));
    Ask({1, 2});
    Wait(milliseconds(50));
    EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(5, 10, true)}));
}

TEST_F(DriveReports, TurningRoundWhileMovingGoesThroughZero) {
    Ask({34, 5, 64 + 2});
    PollAll();
    Ask({34, 5, 2, 10});
    Wait(milliseconds(100));
    EXPECT_EQ(Poll(), BlockSpeedReport(5, 1, true));
    Wait(milliseconds(100));
    EXPECT_EQ(Poll(), BlockSpeedReport(5, 0, false));
    Wait(milliseconds(200));
    EXPECT_EQ(Poll(), BlockSpeedReport(5, 2, false));
}

TEST_F(DriveReports, LinkedBlocksReportEach) {
    Ask({58, 3, 6, 4});
    Ask({34, 3, 76});
    EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(3, 12, true),
                                               BlockSpeedReport(4, 12, false)}));
}

TEST_F(DriveReports, MccAcceleratesOverTime) {
    Ask({6, 0, 5, 31, 7});
    Wait(kMccHalfStep * 7 * 15);
    EXPECT_EQ(Listed("mcc.5"), "half-steps:15,target:30,functions:0,emergency-stop:0");
}

TEST_F(DriveReports, ARebootStopsEverythingAndEndsTheLinks) {
    Ask({58, 3, 2, 4});
    Ask({34, 3, 76});
    Ask({22, 44});
    unit_.Reboot(now_);
    EXPECT_EQ(PollAll(), std::vector<Payload>{});
    EXPECT_EQ(Listed("block.3"), "none");
    EXPECT_EQ(Listed("link.3.4"), "none");
    EXPECT_EQ(Listed("point.300"), "thrown");  // stands beside the track as it was
}

}  // namespace
}  // namespace zelvar::sim
