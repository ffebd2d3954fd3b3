// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/speed_read_out.h"

#include <gtest/gtest.h>

namespace zelvar::testing {
namespace {

TEST(SpeedReadOutTest, IsTheDirectionMarkWithTheSpeed) {
    EXPECT_EQ(SpeedReadOut(12, true), ">>12");
    EXPECT_EQ(SpeedReadOut(12, false), "<<12");
    EXPECT_EQ(SpeedReadOut(0, true), ">>0");
    EXPECT_EQ(SpeedReadOut(63, false), "<<63");
}

}  // namespace
}  // namespace zelvar::testing
