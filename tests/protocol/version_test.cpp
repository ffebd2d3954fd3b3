// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/version.h"

#include <gtest/gtest.h>

#include <string>

namespace zelvar::testing {
namespace {

struct VersionRow {
    const char* name;
    std::uint8_t high;
    std::uint8_t low;
    int number;
    const char* text;
};

class Version : public ::testing::TestWithParam<VersionRow> {};

TEST_P(Version, IsDecodedAndShown) {
    EXPECT_EQ(DecodeVersion(GetParam().high, GetParam().low), GetParam().number);
    EXPECT_EQ(FormatVersion(GetParam().number), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, Version,
    ::testing::Values(VersionRow{"WithLetter", 0x19, 0x0A, 3112, "3.11 B"},
                      VersionRow{"WithoutLetter", 0x19, 0x08, 3110, "3.11"},
                      VersionRow{"FirstOfTheNewView", 0x19, 0x01, 3101, "3.10 A"},
                      VersionRow{"LastOfTheClassicView", 0x19, 0x00, 3100, "3.10"},
                      VersionRow{"LetterG", 0x08, 0x17, 1027, "1.02 G"},
                      VersionRow{"LeadingZeros", 0x00, 0x01, 1, "0.00 A"},
                      VersionRow{"None", 0x00, 0x00, 0, "0.00"},
                      VersionRow{"Hundreds", 0x0F, 0x10, 1720, "1.72"},
                      // The tens may carry into the hundreds, since they travel as 0..15.
                      VersionRow{"TensAboveNine", 0x08, 0x78, 1150, "1.15"},
                      // Five digits show the first three of them.
                      VersionRow{"Largest", 0x7F, 0x7F, 15857, "1.58 G"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(FormatVersionTest, TheLastDigitIsALetterUpToI) {
    EXPECT_EQ(FormatVersion(3108), "3.10 H");
    EXPECT_EQ(FormatVersion(3109), "3.10 I");
}

}  // namespace
}  // namespace zelvar::testing
