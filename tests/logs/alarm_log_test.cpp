// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "logs/alarm_log.h"

#include <gtest/gtest.h>

namespace zelvar::testing {
namespace {

TEST(AlarmLog, HasALineForEachDetectionAndRelease) {
    EXPECT_EQ(AlarmLine({133, true}), "Overcurrent block 133 detected .............\r\n");
    EXPECT_EQ(AlarmLine({0, true}), "Overcurrent block 0 detected .............\r\n");
    EXPECT_EQ(AlarmLine({5, false}), "Overcurrent block 5 .............. released\r\n");
    EXPECT_EQ(AlarmLine({255, false}), "Overcurrent block 255 .............. released\r\n");
}

}  // namespace
}  // namespace zelvar::testing
