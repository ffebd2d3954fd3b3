// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// What stops the trains: emergency stops, the Stop request, faults, and the overcurrent of two
// trains in one block.
#include "sim/railway_fixture.h"

namespace zelvar::sim {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds kOneStep{10};

using EmergencyStop = RailwayFixture;

TEST_F(EmergencyStop, StandsAnAnalogTrainAtOnce) {
    Build({AnalogTrain("red", kWest)});
    Ask({34, 1, 64 + 30, 1});
    Wait(milliseconds(500));
    Ask({34, 1, 64});
    Wait(kOneStep);
    EXPECT_EQ(Part("train.red", "speed"), "0.0");
}

TEST_F(EmergencyStop, StandsADccTrainAtOnceInBothStepModes) {
    for (const Payload& stop : {Payload{40, 0, 127, 3}, Payload{44, 0, 1, 127, 3}}) {
        Build({DccTrain("blue", 3, kWest, 20)});
        Ask({40, 0, 64 + 32 + 28, 3});
        Wait(seconds(1));
        EXPECT_EQ(Speed("blue"), "20.0 forward");
        Ask(stop);
        Wait(kOneStep);
        EXPECT_EQ(Speed("blue"), "0.0 forward");
        Ask({40, 0, 64 + 32 + 28, 3});
        Wait(milliseconds(500));
        EXPECT_EQ(Speed("blue"), "10.0 forward") << "gathers speed again";
    }
}

TEST_F(EmergencyStop, StandsAnMccTrainAtOnce) {
    Build({MccTrain("bus", 5, kWest)});
    Ask({6, 0, 5, 31, 0});
    Wait(seconds(1));
    Ask({6, 0, 5, 0, 0});
    Wait(kOneStep);
    EXPECT_EQ(Part("train.bus", "speed"), "0.0");
}

TEST_F(EmergencyStop, ClearingABlockStandsItsDccTrainAtOnce) {
    for (const Payload& full : {Payload{40, 1, 64 + 32 + 28, 3}, Payload{44, 1, 1, 126, 3}}) {
        Build({DccTrain("blue", 3, kWest, 20)});
        Ask(full);
        Wait(seconds(1));
        Ask({62, 1, 18});
        Wait(kOneStep);
        EXPECT_EQ(Speed("blue"), "0.0 forward");
        Ask(full);
        Wait(seconds(1));
        EXPECT_EQ(Speed("blue"), "20.0 forward") << "until its next speed only";
    }
}

class Power : public RailwayFixture {
  protected:
    /// One train of each kind, all at full speed.
    void BuildRunning() {
        Train bus = MccTrain("bus", 5, kStub, 20);
        bus.topSpeed = 3;
        bus.acceleration = 1;
        Build({AnalogTrain("red", kWest, 20), DccTrain("blue", 3, kEast, 20), bus});
        Drive(1, 20);
        Ask({40, 0, 64 + 32 + 10, 3});
        Ask({6, 0, 5, 31, 0});
        Wait(seconds(1));
        ExpectSpeeds("20.0", "20.0", "3.0");
    }
    void ExpectSpeeds(const char* red, const char* blue, const char* bus) {
        EXPECT_EQ(Part("train.red", "speed"), red);
        EXPECT_EQ(Part("train.blue", "speed"), blue);
        EXPECT_EQ(Part("train.bus", "speed"), bus);
    }
};

TEST_F(Power, EverythingStandsWhileAStopIsRequestedAndResumesByItsMass) {
    BuildRunning();
    Send({}, kHeaderStopBit);
    ExpectSpeeds("0.0", "0.0", "0.0");
    const std::string where = Where("red");
    Wait(seconds(5));
    Send({}, kHeaderStopBit);
    EXPECT_EQ(Where("red"), where);
    Wait(seconds(5));
    Send({});
    EXPECT_EQ(Where("red"), where) << "until the request ends";
    Wait(milliseconds(500));
    ExpectSpeeds("5.0", "10.0", "0.5");
    Wait(milliseconds(1500));
    ExpectSpeeds("20.0", "20.0", "2.0");
    Wait(milliseconds(1000));
    ExpectSpeeds("20.0", "20.0", "3.0");
}

TEST_F(Power, WhatIsCommandedWhileStoppedHoldsAfterwards) {
    BuildRunning();
    Send({}, kHeaderStopBit);
    Send({34, 1, 64 + 5}, kHeaderStopBit);
    Send({40, 0, 127, 3}, kHeaderStopBit);
    Wait(seconds(5));
    Send({});
    Wait(seconds(5));
    EXPECT_EQ(Part("train.red", "speed"), "5.0");
    EXPECT_EQ(Part("train.blue", "speed"), "0.0");
}

TEST_F(Power, AfterAStopASlowerSpeedIsTakenAtOnce) {
    BuildRunning();
    Send({}, kHeaderStopBit);
    Send({});
    Wait(seconds(1));
    EXPECT_EQ(Part("train.red", "speed"), "10.0");
    Drive(1, 4);
    Wait(kOneStep);
    EXPECT_EQ(Part("train.red", "speed"), "4.0");
    Drive(1, 14);
    Wait(kOneStep);
    EXPECT_EQ(Part("train.red", "speed"), "14.0") << "it had the speed it was set to";
}

TEST_F(Power, EverythingStandsInFaultAndResumesAfterTheReset) {
    BuildRunning();
    unit_.Advance(now_);
    unit_.state().fault = true;
    unit_.Advance(now_);
    ExpectSpeeds("0.0", "0.0", "0.0");
    const std::string where = Where("blue");
    Wait(seconds(5));
    EXPECT_EQ(Where("blue"), where);
    Ask({1, 0});
    Wait(milliseconds(500));
    ExpectSpeeds("5.0", "10.0", "0.5");
}

TEST_F(Power, HoldIsOnlyReported) {
    BuildRunning();
    unit_.state().hold = true;
    Wait(milliseconds(500));
    ExpectSpeeds("20.0", "20.0", "3.0");
}

TEST_F(Power, AfterARebootEverythingStandsWhereItIs) {
    BuildRunning();
    unit_.Reboot(now_);
    ExpectSpeeds("0.0", "0.0", "0.0");
    const std::string where = Where("red");
    Wait(seconds(5));
    ExpectSpeeds("0.0", "0.0", "0.0");
    EXPECT_EQ(Where("red"), where);
}

class Overcurrent : public RailwayFixture {
  protected:
    /// Red runs up to blue, which stands in the block after the joint.
    void Meet() {
        Build({AnalogTrain("red", kWest, 90), AnalogTrain("blue", kNorth, 80)});
        Drive(1, 10);
        Wait(milliseconds(1000));
        EXPECT_EQ(TrackReports(), std::vector<Payload>{});
        EXPECT_EQ(Listed("fault"), "0");
        Wait(milliseconds(100));
    }
};

TEST_F(Overcurrent, TwoTrainsInABlockAreReportedAndPutTheUnitIntoFault) {
    Meet();
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{OvercurrentReport(2, true)}));
    EXPECT_EQ(Listed("overcurrent"), "2");
    EXPECT_EQ(Listed("fault"), "1");
    EXPECT_EQ(Send({})->headerBits, kHeaderFaultBit);
    EXPECT_EQ(Part("train.red", "speed"), "0.0");
    EXPECT_EQ(Listed("section.north"), "occupied:1,block:2,feedback:12,trains:red+blue");
}

TEST_F(Overcurrent, AfterTheResetTheTrainsCanBeDrivenApart) {
    Meet();
    Drive(1, 0);
    PollAll();
    Ask({1, 0});
    Wait(seconds(5));
    EXPECT_EQ(Listed("fault"), "0") << "the same pair is not reported again";
    EXPECT_EQ(Listed("overcurrent"), "2");
    Drive(2, 10, false);
    Drive(1, 10, false);
    Wait(milliseconds(200));
    Drive(2, 0);
    Wait(kOneStep);
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{OvercurrentReport(2, false)}));
    EXPECT_EQ(Listed("overcurrent"), "");
    EXPECT_EQ(Listed("fault"), "0");
}

TEST_F(Overcurrent, ItsEndDoesNotResetTheFault) {
    Meet();
    PollAll();
    unit_.state().railway.Place(1, kEast, 50, {});
    EXPECT_EQ(TrackReports(),
              (std::vector<Payload>{FeedbackReport(15, true), OvercurrentReport(2, false)}));
    EXPECT_EQ(Listed("fault"), "1");
}

TEST_F(Overcurrent, ANewPairIsReportedAgain) {
    Meet();
    unit_.state().railway.Place(1, kEast, 50, {});
    Ask({1, 0});
    PollAll();
    unit_.state().railway.Place(1, kNorth, 80, {});
    EXPECT_EQ(TrackReports(),
              (std::vector<Payload>{FeedbackReport(15, false), OvercurrentReport(2, true)}));
    EXPECT_EQ(Listed("fault"), "1");
}

TEST_F(Overcurrent, TheTailCountsToo) {
    Build({AnalogTrain("red", kWest, 50), AnalogTrain("blue", kNorth, 19)});
    EXPECT_EQ(Listed("overcurrent"), "1");
    EXPECT_EQ(Listed("fault"), "1");
}

TEST_F(Overcurrent, TwoSectionsOfOneBlockAreOneBlock) {
    TrackPlan plan = LoopPlan();
    plan.sections[kSiding].block = 2;
    Build({AnalogTrain("red", kNorth, 50), AnalogTrain("blue", kSiding, 50)}, plan);
    EXPECT_EQ(Listed("overcurrent"), "2");
}

TEST_F(Overcurrent, OneTrainInTwoSectionsOfABlockIsNone) {
    TrackPlan plan = LoopPlan();
    plan.sections[kNorth].block = 1;
    Build({AnalogTrain("red", kNorth, 5)}, plan);
    EXPECT_EQ(Listed("overcurrent"), "");
    EXPECT_EQ(Listed("fault"), "0");
}

TEST_F(Overcurrent, AfterARebootAPairIsReportedAgain) {
    Meet();
    PollAll();
    unit_.Reboot(now_);
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{OvercurrentReport(2, true)}));
    EXPECT_EQ(Listed("overcurrent"), "2");
    EXPECT_EQ(Listed("fault"), "1");
    unit_.state().railway.Place(1, kEast, 50, {});
    EXPECT_EQ(TrackReports(),
              (std::vector<Payload>{FeedbackReport(15, true), OvercurrentReport(2, false)}));
    EXPECT_EQ(Listed("overcurrent"), "");
}

TEST_F(Overcurrent, AfterARebootAPairThatHasPartedIsForgotten) {
    Meet();
    unit_.state().railway.Place(1, kEast, 50, {});
    unit_.Reboot(now_);
    EXPECT_EQ(TrackReports(), std::vector<Payload>{});
    EXPECT_EQ(Listed("overcurrent"), "");
    EXPECT_EQ(Listed("fault"), "0");
}

TEST_F(Overcurrent, AfterARebootOneMadeByHandIsForgotten) {
    Build({AnalogTrain("red", kWest), AnalogTrain("blue", kNorth)});
    unit_.state().overcurrent.set(2);
    unit_.state().overcurrent.set(200);
    unit_.Reboot(now_);
    EXPECT_EQ(TrackReports(), std::vector<Payload>{});
    EXPECT_EQ(Listed("overcurrent"), "");
    EXPECT_EQ(Listed("fault"), "0");
}

TEST_F(Overcurrent, AReleaseByHandIsNotRepeated) {
    Meet();
    PollAll();
    unit_.state().overcurrent.reset(2);
    unit_.state().railway.Place(1, kEast, 50, {});
    EXPECT_EQ(TrackReports(), (std::vector<Payload>{FeedbackReport(15, true)}));
}

}  // namespace
}  // namespace zelvar::sim
