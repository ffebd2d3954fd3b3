// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "sim/layouts/layout_problems.h"

namespace zelvar::sim {
namespace {

using Indexes = std::vector<std::size_t>;

TrackPlan Read(const std::string& text) {
    const auto parsed = ParseLayout(UnitText() + text);
    if (!std::holds_alternative<DescribedLayout>(parsed)) {
        ADD_FAILURE() << ProblemsOf(UnitText() + text).front();
        return {};
    }
    return std::get<DescribedLayout>(parsed).layout.track;
}

/// One section in a line of its own.
std::string Section(const std::string& name, const std::string& rest) {
    return "[[section]]\nname=\"" + name + "\"\nblock=3\nlength=100\n" + rest + '\n';
}

const std::string kStation =  // two tracks between "west" and "east"
    Section("west", "next=[\"one\",\"two\"]\nnext-point=0") + Section("one", "next=\"east\"") +
    Section("two", "next=\"east\"") +
    Section("east", "previous=[\"one\",\"two\"]\nprevious-point=511\nfeedback=2047");

TEST(LayoutTrackTest, SectionsAreConnectedByName) {
    const TrackPlan plan = Read(kStation);
    ASSERT_EQ(plan.sections.size(), 4U);
    const TrackSection& west = plan.sections[0];
    EXPECT_EQ(west.name, "west");
    EXPECT_EQ(west.block, 3);
    EXPECT_EQ(west.length, 100);
    EXPECT_FALSE(west.feedback);
    EXPECT_EQ(west.front.sections, (Indexes{1, 2}));
    EXPECT_EQ(west.front.point, 0);
    EXPECT_EQ(west.back.sections, Indexes{});  // a buffer stop
    const TrackSection& east = plan.sections[3];
    EXPECT_EQ(east.feedback, 2047);
    EXPECT_EQ(east.back.sections, (Indexes{1, 2}));
    EXPECT_EQ(east.back.point, 511);
    EXPECT_EQ(east.front.sections, Indexes{});
}

TEST(LayoutTrackTest, PreviousMayBeLeftOutBehindOneSection) {
    const TrackPlan plan = Read(kStation);
    EXPECT_EQ(plan.sections[1].back.sections, Indexes{0});
    EXPECT_EQ(plan.sections[2].back.sections, Indexes{0});
    EXPECT_FALSE(plan.sections[1].back.point);
}

TEST(LayoutTrackTest, TwoSectionsMayCloseACircle) {
    const TrackPlan plan = Read(Section("a", "next=\"b\"") + Section("b", "next=\"a\""));
    EXPECT_EQ(plan.sections[0].back.sections, Indexes{1});
    EXPECT_EQ(plan.sections[1].back.sections, Indexes{0});
}

TEST(LayoutTrackTest, SectionsMayMeetAtTheirFronts) {
    const TrackPlan plan =
        Read(Section("a", "next=\"b\"") + Section("b", "next=\"a\"\nprevious=[]"));
    EXPECT_EQ(plan.sections[1].front.sections, Indexes{0});
    EXPECT_EQ(plan.sections[1].back.sections, Indexes{});
}

std::string Train(const std::string& rest) {
    return "[[train]]\nname=\"T\"\nsection=\"b\"\nlength=40\ntop-speed=30.5\n" + rest + '\n';
}

const std::string kTwo = Section("a", "") + "[[section]]\nname=\"b\"\nblock=4\nlength=100\n";

TEST(LayoutTrackTest, ATrainBeginsInTheMiddle) {
    const TrackPlan plan = Read(kTwo + Train("control=\"analog\""));
    ASSERT_EQ(plan.trains.size(), 1U);
    const sim::Train& train = plan.trains[0];
    EXPECT_EQ(train.name, "T");
    EXPECT_EQ(train.control, TrainControl::kAnalog);
    EXPECT_EQ(train.section, 1U);
    EXPECT_EQ(train.length, 40);
    EXPECT_EQ(train.position, 70);
    EXPECT_EQ(train.topSpeed, 30.5);
    EXPECT_EQ(train.acceleration, 0);
}

struct PlaceCase {
    const char* name;
    const char* text;
    double position;
};

class TrainPlaces : public testing::TestWithParam<PlaceCase> {};

TEST_P(TrainPlaces, AreBetweenItsLengthAndThatOfTheSection) {
    const TrackPlan plan =
        Read(kTwo + Train("control=\"analog\"\n" + std::string(GetParam().text)));
    ASSERT_EQ(plan.trains.size(), 1U);
    EXPECT_EQ(plan.trains[0].position, GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Rows, TrainPlaces,
                         testing::Values(PlaceCase{"AtTheBack", "position=40", 40},
                                         PlaceCase{"Between", "position=50.25", 50.25},
                                         PlaceCase{"AtTheFront", "position=100", 100}),
                         [](const auto& row) { return row.param.name; });

struct DecoderCase {
    const char* name;
    const char* text;
    TrainControl control;
    int address;
    bool isLong;
};

class Decoders : public testing::TestWithParam<DecoderCase> {};

TEST_P(Decoders, HaveAddresses) {
    const TrackPlan plan = Read(kTwo + Train(GetParam().text));
    ASSERT_EQ(plan.trains.size(), 1U);
    EXPECT_EQ(plan.trains[0].control, GetParam().control);
    EXPECT_EQ(plan.trains[0].address, GetParam().address);
    EXPECT_EQ(plan.trains[0].longAddress, GetParam().isLong);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Decoders,
    testing::Values(
        DecoderCase{"FirstDcc", "control=\"dcc\"\naddress=1", TrainControl::kDcc, 1, false},
        DecoderCase{"LastShort", "control=\"dcc\"\naddress=127", TrainControl::kDcc, 127, false},
        DecoderCase{"FirstLong", "control=\"dcc\"\naddress=128", TrainControl::kDcc, 128, true},
        DecoderCase{"LastDcc", "control=\"dcc\"\naddress=10239", TrainControl::kDcc, 10239, true},
        DecoderCase{"ShortAsLong", "control=\"dcc\"\naddress=3\nlong-address=true",
                    TrainControl::kDcc, 3, true},
        DecoderCase{"ShortWritten", "control=\"dcc\"\naddress=3\nlong-address=false",
                    TrainControl::kDcc, 3, false},
        DecoderCase{"FirstMcc", "control=\"mcc\"\naddress=0", TrainControl::kMcc, 0, false},
        DecoderCase{"LastMcc", "control=\"mcc\"\naddress=4095", TrainControl::kMcc, 4095, false}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::sim
