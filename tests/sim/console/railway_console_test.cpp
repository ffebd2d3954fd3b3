// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console.h"
#include "sim/line/faults.h"
#include "sim/railway_fixture.h"

namespace zelvar::sim {
namespace {

using std::chrono::seconds;

class RailwayConsole : public RailwayFixture {
  protected:
    RailwayConsole() { Build({AnalogTrain("red", kWest), AnalogTrain("blue", kNorth)}); }
    std::string Answer(std::string_view line) {
        ConsoleContext context{unit_, faults_, now_};
        return RunConsoleLine(context, line).text;
    }
    Faults faults_;
};

struct LineCase {
    const char* name;
    const char* line;
    const char* answer;
};

class RailwayLine : public RailwayConsole, public testing::WithParamInterface<LineCase> {};

TEST_P(RailwayLine, IsAnsweredWith) {
    EXPECT_EQ(Answer(GetParam().line), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, RailwayLine,
    testing::Values(
        LineCase{"Place", "place red east", "ok"},
        LineCase{"PlaceAtTheStart", "place red siding 0", "ok"},
        LineCase{"PlaceAtTheEnd", "place red siding 60", "ok"},
        LineCase{"PlaceBeyond", "place red siding 61", "error CM must be 0..60"},
        LineCase{"PlaceBefore", "place red siding -1", "error CM must be 0..60"},
        LineCase{"NoTrain", "place green siding",
                 "error unknown train green: red or blue expected"},
        LineCase{"NoSection", "place red moon",
                 "error unknown section moon: west, north, siding, east or stub expected"},
        LineCase{"PlaceTwoNumbers", "place red siding 5 6",
                 "error one number expected behind the section"},
        LineCase{"PlaceText", "place red siding far", "error CM must be 0..60"},
        LineCase{"PlaceUsage", "place red", "error usage: place TRAIN SECTION [CM]"},
        LineCase{"Point", "point 511 thrown", "ok"},
        LineCase{"PointTooHigh", "point 512 thrown", "error D must be 0..511"},
        LineCase{"PointWord", "point 4 left", "error straight or thrown expected"},
        LineCase{"Stand", "time-factor 0", "ok"}, LineCase{"Fastest", "time-factor 100", "ok"},
        LineCase{"TooFast", "time-factor 101", "error N must be 0..100"},
        LineCase{"Backwards", "time-factor -1", "error N must be 0..100"},
        LineCase{"RunNothing", "run 0", "error MS must be 1..600000"},
        LineCase{"RunTooLong", "run 600001", "error MS must be 1..600000"},
        LineCase{"RunUsage", "run", "error usage: run MS"},
        LineCase{"RunWhileTimePasses", "run 1000", "error \"time-factor 0\" expected first"}),
    [](const auto& row) { return row.param.name; });

TEST_F(RailwayConsole, PlacePutsATrainIntoTheMiddleAndStandsIt) {
    DriveLoop(20);
    Wait(seconds(1));
    Answer("place red east");
    EXPECT_EQ(Where("red"), "east 60.0") << "with as much track in front as behind";
    EXPECT_EQ(Part("train.red", "speed"), "0.0");
}

TEST_F(RailwayConsole, PlaceTakesNamesWithBlanks) {
    TrackPlan plan = LoopPlan();
    plan.sections[kSiding].name = "west 2";
    Build({AnalogTrain("red", kNorth), AnalogTrain("red express", kEast)}, plan);
    EXPECT_EQ(Answer("place red express west 2 25"), "ok");
    EXPECT_EQ(Where("red express"), "west 2 25.0");
    EXPECT_EQ(Answer("place red express west 25"), "ok");
    EXPECT_EQ(Where("red express"), "west 25.0");
    EXPECT_EQ(Where("red"), "north 50.0");
    EXPECT_EQ(Answer("place red express"), "error a section expected");
}

TEST_F(RailwayConsole, AnUnknownNameIsToldAtMostEightOfTheKnownOnes) {
    std::vector<Train> trains;
    for (int number = 1; number <= 8; ++number) {
        trains.push_back(AnalogTrain("t" + std::to_string(number), kWest));
    }
    Build(trains);
    EXPECT_EQ(Answer("place \"red express\" west"),
              "error unknown train \"red: t1, t2, t3, t4, t5, t6, t7 or t8 expected");
    trains.push_back(AnalogTrain("t9", kWest));
    Build(trains);
    EXPECT_EQ(Answer("place red west"),
              "error unknown train red: t1, t2, t3, t4, t5, t6, t7, t8, ... expected");
}

TEST_F(RailwayConsole, PlaceTripsTheDetectors) {
    PollAll();
    Answer("place red siding 30");
    EXPECT_EQ(Where("red"), "siding 30.0");
    EXPECT_EQ(TrackReports(),
              (std::vector<Payload>{FeedbackReport(11, false), FeedbackReport(13, true)}));
}

TEST_F(RailwayConsole, PlaceBesideAnotherTrainIsAnOvercurrent) {
    Answer("place red north 95");
    EXPECT_EQ(Listed("overcurrent"), "2");
    EXPECT_EQ(Listed("fault"), "1");
}

TEST_F(RailwayConsole, PlaceEndsAnOvercurrent) {
    Answer("place red north 95");
    Answer("place red east");
    EXPECT_EQ(Listed("overcurrent"), "");
}

TEST_F(RailwayConsole, PointIsThrownAndSetStraight) {
    Answer("point 4 thrown");
    EXPECT_EQ(Listed("point.4"), "thrown");
    Answer("point 4 straight");
    EXPECT_EQ(Listed("point.4"), "straight");
}

TEST_F(RailwayConsole, TrainsRunUpToTheMomentOfAFault) {
    Drive(1, 10);
    Wait(seconds(1));
    Answer("fault on");
    Wait(seconds(1));
    EXPECT_EQ(Where("red"), "west 60.0");
    Answer("fault off");
    Wait(seconds(1));
    EXPECT_EQ(Part("train.red", "speed"), "10.0");
}

TEST_F(RailwayConsole, TimeFactorHoldsFromThereOn) {
    Drive(1, 10);
    Wait(seconds(1));
    Answer("time-factor 3");
    Wait(seconds(1));
    EXPECT_EQ(Where("red"), "west 90.0");
}

TEST_F(RailwayConsole, RunLetsThatTimePassAtOnceAndNoMore) {
    Answer("time-factor 0");
    Drive(1, 10);
    EXPECT_EQ(Answer("run 1500"), "ok");
    EXPECT_EQ(Where("red"), "west 65.0");
    EXPECT_EQ(Listed("simulated-ms"), "1500");
    Wait(seconds(5));
    EXPECT_EQ(Where("red"), "west 65.0");
    EXPECT_EQ(Answer("run 1"), "ok");
    EXPECT_EQ(Listed("simulated-ms"), "1501");
}

TEST_F(RailwayConsole, RunRefusedLetsNoTimePass) {
    Drive(1, 10);
    Answer("run 1500");
    EXPECT_EQ(Listed("simulated-ms"), "0");
    EXPECT_EQ(Where("red"), "west 50.0");
}

TEST_F(RailwayConsole, TheLongestRunDropsNothing) {
    Build({AnalogTrain("red", kWest)});
    Answer("time-factor 0");
    DriveLoop(30);
    EXPECT_EQ(Answer("run 600000"), "ok");
    EXPECT_EQ(Listed("simulated-ms"), "600000");
    EXPECT_EQ(Where("red"), "west 50.0") << "sixty times round the loop of 300 cm";
}

TEST_F(RailwayConsole, TimeGoesOnWhereARunEnded) {
    Answer("time-factor 0");
    Drive(1, 10);
    Answer("run 1000");
    Wait(seconds(7));
    Answer("time-factor 1");
    Wait(seconds(1));
    EXPECT_EQ(Where("red"), "west 70.0");
    EXPECT_EQ(Listed("simulated-ms"), "2000");
}

TEST_F(RailwayConsole, StateShowsTrainsAndTrackAsTables) {
    Build({DccTrain("blue", 1000, kEast, 10), MccTrain("bus", 5, kStub)});
    Ask({6, 0, 5, 31, 0});
    Wait(seconds(2));
    const std::string text = Answer("state");
    EXPECT_NE(text.find("Trains\n"
                        "  train  control   section  nose at  speed     direction  block\n"
                        "  blue   DCC 1000  east     10.0 cm  0.0 cm/s  forward    5\n"
                        "  bus    MCC 5     stub     80.0 cm  0.0 cm/s  forward    9\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("Track\n"
                        "  section  block  length    detector  trains\n"
                        "  west     1      100.0 cm  11\n"
                        "  north    2      100.0 cm  12        blue\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("Simulated time\n  passed  2 s\n  factor  1\n"), std::string::npos) << text;
}

TEST_F(RailwayConsole, AnEmptyTableListsNoTrains) {
    unit_ = CentralUnit(EmptyLayout());
    EXPECT_EQ(StateListing(unit_.state()).find("train."), std::string::npos);
    EXPECT_EQ(StateListing(unit_.state()).find("section."), std::string::npos);
    EXPECT_EQ(Answer("state").find("Trains"), std::string::npos);
    EXPECT_EQ(Answer("state").find("Simulated time"), std::string::npos);
    EXPECT_EQ(Answer("place red west"), "error unknown train red: the layout has none");
}

}  // namespace
}  // namespace zelvar::sim
