// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/ramp.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

using std::chrono::milliseconds;

TEST(RampTest, WithoutTimePerStepItIsThereAtOnce) {
    Ramp ramp;
    ramp.Set(-20, milliseconds(0), milliseconds(0));
    EXPECT_TRUE(ramp.Advance(milliseconds(0)));
    EXPECT_EQ(ramp.speed(), -20);
    EXPECT_FALSE(ramp.Advance(milliseconds(10)));
}

TEST(RampTest, TakesOneStepEachTime) {
    Ramp ramp;
    ramp.Set(3, milliseconds(100), milliseconds(50));
    EXPECT_FALSE(ramp.Advance(milliseconds(149)));
    EXPECT_TRUE(ramp.Advance(milliseconds(150)));
    EXPECT_EQ(ramp.speed(), 1);
    EXPECT_TRUE(ramp.Advance(milliseconds(249)));
    EXPECT_EQ(ramp.speed(), 2);
    EXPECT_TRUE(ramp.Advance(milliseconds(250)));
    EXPECT_EQ(ramp.speed(), 3);
    EXPECT_FALSE(ramp.Advance(milliseconds(9000)));
    EXPECT_EQ(ramp.speed(), 3);
}

TEST(RampTest, LosesNoTimeWhenAskedSeldom) {
    Ramp ramp;
    ramp.Set(60, milliseconds(0), milliseconds(10));
    ramp.Advance(milliseconds(15));
    ramp.Advance(milliseconds(599));
    EXPECT_EQ(ramp.speed(), 59);
    ramp.Advance(milliseconds(600));
    EXPECT_EQ(ramp.speed(), 60);
}

TEST(RampTest, TurnsRoundThroughZero) {
    Ramp ramp;
    ramp.Set(2, milliseconds(0), milliseconds(0));
    ramp.Advance(milliseconds(0));
    ramp.Set(-2, milliseconds(0), milliseconds(10));
    ramp.Advance(milliseconds(20));
    EXPECT_EQ(ramp.speed(), 0);
    ramp.Advance(milliseconds(40));
    EXPECT_EQ(ramp.speed(), -2);
    EXPECT_EQ(ramp.target(), -2);
}

TEST(RampTest, ANewTargetStartsFromWhereItIs) {
    Ramp ramp;
    ramp.Set(10, milliseconds(0), milliseconds(10));
    ramp.Advance(milliseconds(30));
    ramp.Set(0, milliseconds(30), milliseconds(10));
    ramp.Advance(milliseconds(39));
    EXPECT_EQ(ramp.speed(), 3);
    ramp.Advance(milliseconds(60));
    EXPECT_EQ(ramp.speed(), 0);
}

}  // namespace
}  // namespace zelvar::sim
