// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/version.h"

#include <gtest/gtest.h>

#include <set>

namespace zelvar::sim {
namespace {

TEST(VersionTest, HasBytesJustWhenSomeBytesDecodeToIt) {
    std::set<int> possible;
    for (int high = 0; high < 128; ++high) {
        for (int low = 0; low < 128; ++low) {
            possible.insert(DecodeVersion(high, low));
        }
    }
    for (int version = -10; version <= 20000; ++version) {
        const auto bytes = EncodeVersion(version);
        ASSERT_EQ(bytes.has_value(), possible.count(version) == 1) << version;
        if (bytes) {
            ASSERT_EQ(DecodeVersion(bytes->high, bytes->low), version);
        }
    }
}

TEST(VersionTest, HasTheseBytes) {
    EXPECT_EQ(DecodeVersion(0x19, 0x0A), 3112);
    const auto bytes = EncodeVersion(3112);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->high, 0x19);
    EXPECT_EQ(bytes->low, 0x0A);
    EXPECT_FALSE(EncodeVersion(1018));
}

TEST(VersionTest, HasALetterForItsLastDigit) {
    EXPECT_EQ(VersionName(3112), "3.11 B");
    EXPECT_EQ(VersionName(3100), "3.10");
    EXPECT_EQ(VersionName(1007), "1.00 G");
    EXPECT_EQ(VersionName(0), "none");
}

}  // namespace
}  // namespace zelvar::sim
