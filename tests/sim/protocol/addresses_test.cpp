// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/addresses.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

TEST(LineAddressTest, FirstUnitsComeBeforeSecondOnes) {
    EXPECT_EQ(LineAddress(0), 32);
    EXPECT_EQ(LineAddress(31), 63);
    EXPECT_EQ(LineAddress(32), 0);
    EXPECT_EQ(LineAddress(63), 31);
}

TEST(LineAddressTest, HasAnInverseInItsFamilies) {
    for (int line = 0; line < kTractionLines; ++line) {
        EXPECT_EQ(LineAt(LineAddress(line)), line);
    }
    EXPECT_EQ(LineAt(64), -1);
    EXPECT_EQ(LineAt(96), -1);
}

TEST(PointAddressTest, HasAnInverseInItsFamily) {
    for (int position = 0; position < kPointModules; ++position) {
        EXPECT_EQ(PointPosition(PointAddress(position)), position);
    }
    EXPECT_EQ(PointAddress(9), 81);
    for (const int address : {63, 72, 95, 96}) {
        EXPECT_EQ(PointPosition(address), -1) << address;
    }
}

}  // namespace
}  // namespace zelvar::sim
