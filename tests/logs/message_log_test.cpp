// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "logs/message_log.h"

#include <gtest/gtest.h>

namespace zelvar::testing {
namespace {

TEST(FormatHexByteTest, GivesASpaceAndTwoUpperCaseDigits) {
    EXPECT_EQ(FormatHexByte(138), " 8A");
    EXPECT_EQ(FormatHexByte(0), " 00");
    EXPECT_EQ(FormatHexByte(255), " FF");
}

}  // namespace
}  // namespace zelvar::testing
