// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/text/number.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

TEST(ParseIntTest, TakesDecimalAndHexadecimalOnly) {
    EXPECT_EQ(ParseInt("12", 0, 20), 12);
    EXPECT_EQ(ParseInt("012", 0, 20), 12);
    EXPECT_EQ(ParseInt("0x0C", 0, 20), 12);
    EXPECT_EQ(ParseInt("0X0c", 0, 20), 12);
    EXPECT_EQ(ParseInt("-5", -5, 20), -5);
    EXPECT_EQ(ParseInt("20", 0, 20), 20);
    for (const char* text :
         {"", "0x", "0x-1", "1 2", "12x", "x", "99999999999", "21", "-1", "+1", " 1", "1 "}) {
        EXPECT_EQ(ParseInt(text, 0, 20), std::nullopt) << text;
    }
}

TEST(RangeTextTest, HasBothEnds) {
    EXPECT_EQ(RangeText(-1, 255), "-1..255");
}

}  // namespace
}  // namespace zelvar::sim
