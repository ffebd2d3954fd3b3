// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console_fixture.h"
#include "sim/railway_fixture.h"

namespace zelvar::sim {
namespace {

using std::chrono::seconds;

class RailwayConsole : public ConsoleFixture<RailwayFixture> {
  protected:
    RailwayConsole() { Build({AnalogTrain("red", kWest), AnalogTrain("blue", kNorth)}); }
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
        LineCase{"PlaceBeyond", "place red siding 61",
                 "error CM: expected 0..60 in this section, found 61"},
        LineCase{"PlaceBefore", "place red siding -1", "error CM: expected 0..10000, found -1"},
        LineCase{"NoTrain", "place green siding",
                 "error unknown train green: expected red or blue"},
        LineCase{"NoSection", "place red moon",
                 "error unknown section moon: expected west, north, siding, east or stub"},
        LineCase{"MisspeltSection", "place red nroth",
                 "error unknown section nroth; did you mean north?"},
        LineCase{"PlaceTwoNumbers", "place red siding 5 6",
                 "error usage: place TRAIN SECTION [CM]"},
        LineCase{"RunWhileTimePasses", "run 1000", "error expected \"time-factor 0\" first"}),
    [](const auto& row) { return row.param.name; });

TEST_F(RailwayConsole, PlacePutsATrainIntoTheMiddleAndStandsIt) {
    DriveLoop(20);
    Wait(seconds(1));
    Answer("place red east");
    EXPECT_EQ(Where("red"), "east 60.0") << "with as much track in front as behind";
    EXPECT_EQ(Part("train.red", "speed"), "0.0");
}

TEST_F(RailwayConsole, PlaceTakesNamesWithSpaces) {
    TrackPlan plan = LoopPlan();
    plan.sections[kSiding].name = "west 2";
    Build({AnalogTrain("red", kNorth), AnalogTrain("red express", kEast)}, plan);
    EXPECT_EQ(Answer("place red express west 2 25"), "ok");
    EXPECT_EQ(Where("red express"), "west 2 25.0");
    EXPECT_EQ(Answer("place red express west 25"), "ok");
    EXPECT_EQ(Where("red express"), "west 25.0");
    EXPECT_EQ(Where("red"), "north 50.0");
    EXPECT_EQ(Answer("place red express"), "error usage: place TRAIN SECTION [CM]");
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
    EXPECT_EQ(StateDump(unit_.state()).find("train."), std::string::npos);
    EXPECT_EQ(StateDump(unit_.state()).find("section."), std::string::npos);
    EXPECT_EQ(Answer("state").find("Trains"), std::string::npos);
    EXPECT_EQ(Answer("state").find("Simulated time"), std::string::npos);
    EXPECT_EQ(Answer("place red west"), "error unknown train red: the layout has none");
}

}  // namespace
}  // namespace zelvar::sim
