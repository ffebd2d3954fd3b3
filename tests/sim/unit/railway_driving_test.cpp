// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// How trains follow their commands, and where the track leads them.
#include "sim/railway_fixture.h"

namespace zelvar::sim {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

using Analog = RailwayFixture;

TEST_F(Analog, RunsAtTheSpeedOfTheBlockUnderItsEngine) {
    Build({AnalogTrain("red", kWest)});
    EXPECT_EQ(Where("red"), "west 50.0");
    Drive(1, 12);
    Wait(seconds(2));
    EXPECT_EQ(Where("red"), "west 74.0");
    EXPECT_EQ(Speed("red"), "12.0 forward");
    EXPECT_EQ(Part("train.red", "block"), "1");
}

TEST_F(Analog, RunsBackwardsWhenItsBlockIsReversed) {
    Build({AnalogTrain("red", kWest)});
    Drive(1, 10, false);
    Wait(seconds(4));
    EXPECT_EQ(Where("red"), "west 10.0");
    EXPECT_EQ(Speed("red"), "10.0 reverse");
    EXPECT_TRUE(Occupied("east")) << "its tail";
}

TEST_F(Analog, FollowsTheRampOfItsBlock) {
    Build({AnalogTrain("red", kWest, 20)});
    Ask({34, 1, 64 + 60, 10});  // a step each 100 ms
    Wait(milliseconds(990));
    EXPECT_EQ(Speed("red"), "9.0 forward");
    Wait(milliseconds(10));
    EXPECT_EQ(Speed("red"), "10.0 forward");
    EXPECT_EQ(Where("red"), "west 24.6") << "0.1 s at each speed 1..9 and the first step at 10";
}

TEST_F(Analog, StandsStillWhereTheBlockUnderItsEngineHasNoSpeed) {
    Build({AnalogTrain("red", kWest)});
    Drive(1, 50);
    Wait(seconds(10));
    EXPECT_EQ(Part("train.red", "section"), "north");
    EXPECT_EQ(Part("train.red", "speed"), "0.0");
    EXPECT_TRUE(Occupied("west"));
}

TEST_F(Analog, IsNotMovedByAnotherBlockOrADecoder) {
    Build({AnalogTrain("red", kWest)});
    Drive(2, 50);
    Ask({40, 1, 64 + 32 + 28, 3});
    Wait(seconds(5));
    EXPECT_EQ(Where("red"), "west 50.0");
}

TEST_F(Analog, GoesRoundTheLoop) {
    Build({AnalogTrain("red", kWest)});
    DriveLoop(30);
    Wait(seconds(9));
    EXPECT_EQ(Where("red"), "west 20.0") << "270 of 300 cm";
    Wait(seconds(1));
    EXPECT_EQ(Where("red"), "west 50.0");
}

TEST_F(Analog, GoesRoundTheLoopBackwards) {
    Build({AnalogTrain("red", kWest)});
    DriveLoop(30, false);
    Wait(seconds(10));
    EXPECT_EQ(Where("red"), "west 50.0");
    EXPECT_EQ(Speed("red"), "30.0 reverse");
}

TEST_F(Analog, LinkedBlocksTakeItAlong) {
    Build({AnalogTrain("red", kWest)});
    Ask({58, 1, 2, 2});
    Drive(1, 20);
    Wait(seconds(4));
    EXPECT_EQ(Where("red"), "north 30.0");
}

TEST_F(Analog, TurnedRoundItRunsTheOtherWayOfItsNose) {
    TrackPlan plan;
    plan.sections = {{"a", 1, 50, {}, {{1}, {}}, {{}, {}}}, {"b", 2, 50, {}, {{0}, {}}, {{}, {}}}};
    Build({AnalogTrain("red", 0, 40)}, plan);
    Drive(1, 20);
    Drive(2, 20, false);
    Wait(seconds(2));
    EXPECT_EQ(Where("red"), "b 20.0");
    EXPECT_EQ(Speed("red"), "20.0 forward") << "nose first, against its new section";
}

TEST_F(Analog, APointChoosesTheWay) {
    Build({AnalogTrain("red", kWest)});
    Ask({20, 4});
    DriveLoop(30);
    Wait(seconds(3));
    EXPECT_EQ(Where("red"), "siding 40.0");
    Ask({16, 4});
    Wait(seconds(9));
    EXPECT_EQ(Part("train.red", "section"), "north") << "straight on in the next round";
}

TEST_F(Analog, APointOfAModuleIsAnother) {
    Build({AnalogTrain("red", kWest)});
    Ask({0, 64, 25, 4});
    DriveLoop(30);
    Wait(seconds(3));
    EXPECT_EQ(Where("red"), "north 40.0");
}

TEST_F(Analog, StopsAtADeadEndAndComesBack) {
    Build({AnalogTrain("red", kStub)});
    Drive(9, 40);
    Wait(seconds(5));
    EXPECT_EQ(Where("red"), "stub 80.0");
    EXPECT_EQ(Speed("red"), "0.0 forward");
    Drive(9, 40, false);
    Wait(seconds(1));
    EXPECT_EQ(Where("red"), "stub 40.0");
    Wait(seconds(5));
    EXPECT_EQ(Where("red"), "stub 20.0") << "its tail is at the other end";
}

using Dcc = RailwayFixture;

TEST_F(Dcc, GathersSpeedByItsMass) {
    Build({DccTrain("blue", 3, kWest, 20)});
    Ask({40, 0, 64 + 32 + 10, 3});  // to 20 cm/s, one second
    Wait(milliseconds(500));
    EXPECT_EQ(Speed("blue"), "10.0 forward");
    Wait(milliseconds(500));
    EXPECT_EQ(Speed("blue"), "20.0 forward");
    EXPECT_EQ(Where("blue"), "west 30.1");
    Wait(seconds(2));
    EXPECT_EQ(Speed("blue"), "20.0 forward");
    EXPECT_EQ(Where("blue"), "west 70.1");
}

TEST_F(Dcc, BrakesByItsMass) {
    Build({DccTrain("blue", 3, kWest, 20)});
    Ask({40, 0, 64 + 32 + 10, 3});
    Wait(seconds(2));
    Ask({40, 0, 64 + 32, 3});
    Wait(milliseconds(500));
    EXPECT_EQ(Speed("blue"), "10.0 forward");
    Wait(milliseconds(500));
    EXPECT_EQ(Speed("blue"), "0.0 forward");
}

TEST_F(Dcc, WithoutMassItFollowsAtOnce) {
    Train train = DccTrain("blue", 3, kWest);
    train.acceleration = 0;
    Build({train});
    Ask({40, 0, 64 + 32 + 14, 3});
    Wait(milliseconds(10));
    EXPECT_EQ(Speed("blue"), "28.0 forward");
}

TEST_F(Dcc, ATurnGoesThroughZero) {
    Build({DccTrain("blue", 3, kNorth)});
    Ask({40, 0, 64 + 32 + 10, 3});
    Wait(seconds(1));
    Ask({40, 0, 64 + 10, 3});
    Wait(milliseconds(200));
    EXPECT_EQ(Part("train.blue", "speed"), "16.0");
    EXPECT_EQ(Part("train.blue", "position"), "63.7") << "still rolling on";
    Wait(milliseconds(1800));
    EXPECT_EQ(Speed("blue"), "20.0 reverse");
}

struct StepCase {
    const char* name;
    Payload command;
    const char* speed;
};

class DccSteps : public RailwayFixture, public testing::WithParamInterface<StepCase> {};

TEST_P(DccSteps, GiveTheSpeed) {
    Train train = DccTrain("blue", 3, kStub);
    train.topSpeed = 0.252;  // 28 and 126 divide it evenly, and it gets nowhere
    train.acceleration = 0;
    train.topSpeed *= 100;
    Build({train});
    Ask(GetParam().command);
    Wait(milliseconds(10));
    EXPECT_EQ(Speed("blue"), GetParam().speed);
}

INSTANTIATE_TEST_SUITE_P(Codes, DccSteps,
                         testing::Values(StepCase{"Stop28", {40, 0, 96, 3}, "0.0 forward"},
                                         StepCase{"First28", {40, 0, 97, 3}, "0.9 forward"},
                                         StepCase{"Last28", {40, 0, 124, 3}, "25.2 forward"},
                                         StepCase{"Above28", {40, 0, 126, 3}, "25.2 forward"},
                                         StepCase{"Reverse28", {40, 0, 92, 3}, "25.2 reverse"},
                                         StepCase{"First126", {44, 0, 1, 1, 3}, "0.2 forward"},
                                         StepCase{"Half126", {44, 0, 1, 63, 3}, "12.6 forward"},
                                         StepCase{"Last126", {44, 0, 1, 126, 3}, "25.2 forward"},
                                         StepCase{"Reverse126", {44, 0, 0, 126, 3}, "25.2 reverse"},
                                         StepCase{"OtherDecoder", {40, 0, 124, 4}, "0.0 forward"},
                                         StepCase{"LongForm", {40, 0, 124, 3, 0}, "0.0 forward"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(Dcc, ALongAddressHearsTheLongForm) {
    Train train = DccTrain("blue", 1000, kWest);
    train.longAddress = true;
    train.acceleration = 0;
    Build({train});
    Ask({40, 0, 124, 104, 7});
    Wait(milliseconds(10));
    EXPECT_EQ(Speed("blue"), "56.0 forward");
}

TEST_F(Dcc, ItsBlockAndTheNamedOneDoNotMatter) {
    Build({DccTrain("blue", 3, kWest)});
    Drive(1, 40);
    Wait(seconds(2));
    EXPECT_EQ(Where("blue"), "west 50.0");
    Ask({41, 127, 64 + 32 + 10, 3});
    Wait(seconds(1));
    EXPECT_EQ(Speed("blue"), "20.0 forward");
}

using Mcc = RailwayFixture;

TEST_F(Mcc, RunsByHalfSteps) {
    Build({MccTrain("bus", 5, kWest)});
    Ask({6, 0, 5, 1, 0});
    Wait(seconds(1));
    EXPECT_EQ(Speed("bus"), "1.0 forward");
    Ask({6, 0, 5, 31, 0});
    Wait(seconds(1));
    EXPECT_EQ(Speed("bus"), "30.0 forward");
    EXPECT_EQ(Where("bus"), "west 81.0");
}

TEST_F(Mcc, GathersSpeedByTheAccelerationOfTheCommand) {
    Build({MccTrain("bus", 5, kWest)});
    Ask({6, 0, 5, 31, 7});  // a half step each 140 ms
    Wait(milliseconds(1400));
    EXPECT_EQ(Speed("bus"), "10.0 forward");
}

TEST_F(Mcc, AnotherDecoderLeavesItAlone) {
    Build({MccTrain("bus", 5, kWest)});
    Ask({6, 0, 6, 31, 0});
    Wait(seconds(1));
    EXPECT_EQ(Where("bus"), "west 50.0");
}

using Detectors = RailwayFixture;

TEST_F(Detectors, AreActiveWhereTrainsStandAtTheStart) {
    Build({AnalogTrain("red", kWest), AnalogTrain("blue", kEast, 5)});
    EXPECT_EQ(Listed("feedback"), "11,12,15") << "the second one's tail is still in the north";
    EXPECT_EQ(TrackReports(), std::vector<Payload>{});
    EXPECT_EQ(Ask({96, 11}), FeedbackReport(11, true));
    EXPECT_EQ(Ask({96, 13}), FeedbackReport(13, false));
}

TEST_F(Detectors, AreReportedWhenTheNoseComesAndTheTailGoes) {
    Build({AnalogTrain("red", kWest, 90)});
    DriveLoop(10);
    Wait(milliseconds(1000));
    EXPECT_EQ(TrackReports(), std::vector<Payload>{});
    Wait(milliseconds(100));
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{FeedbackReport(12, true)}));
    Wait(milliseconds(1800));
    EXPECT_EQ(TrackReports(), std::vector<Payload>{});
    Wait(milliseconds(200));
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{FeedbackReport(11, false)}));
    EXPECT_EQ(Listed("feedback"), "12");
    EXPECT_EQ(Listed("section.west"), "occupied:0,block:1,feedback:11,trains:");
    EXPECT_EQ(Listed("section.north"), "occupied:1,block:2,feedback:12,trains:red");
}

TEST_F(Detectors, OnlyTheLatestStateWaitsForAPoll) {
    Build({AnalogTrain("red", kWest)});
    DriveLoop(60);
    Wait(seconds(15));  // three rounds
    EXPECT_EQ(Where("red"), "west 50.0");
    std::vector<Payload> reports = TrackReports();
    EXPECT_EQ(reports, (std::vector<Payload>{FeedbackReport(12, false), FeedbackReport(11, true),
                                             FeedbackReport(15, false)}));
}

TEST_F(Detectors, ThatWereSetByHandHoldUntilATrainChangesThem) {
    Build({AnalogTrain("red", kWest, 90)});
    unit_.state().feedback.reset(11);
    DriveLoop(10);
    Wait(milliseconds(500));
    EXPECT_EQ(Listed("feedback"), "");
    Wait(milliseconds(3000));
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{FeedbackReport(12, true)}))
        << "the other one reports nothing new when it is left";
}

TEST(RailwayChanges, AreNoneAtTheStart) {
    Railway railway(LayoutWith({AnalogTrain("red", kWest)}).track);
    EXPECT_TRUE(railway.detected().test(11));
    EXPECT_TRUE(railway.TakeChanges().inputs.empty());
    railway.Place(0, kEast, 50, {});
    EXPECT_EQ(railway.TakeChanges().inputs,
              (std::vector<std::pair<int, bool>>{{11, false}, {15, true}}));
    EXPECT_TRUE(railway.TakeChanges().inputs.empty());
}

TEST_F(Detectors, OneForTwoSectionsIsActiveInEither) {
    TrackPlan plan = LoopPlan();
    plan.sections[kNorth].feedback = 11;
    Build({AnalogTrain("red", kWest, 90)}, plan);
    DriveLoop(10);
    Wait(seconds(5));
    EXPECT_EQ(Part("train.red", "section"), "north");
    EXPECT_EQ(TrackReports(), std::vector<Payload>{});
    EXPECT_EQ(Listed("feedback"), "11");
}

}  // namespace
}  // namespace zelvar::sim
