// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/central_unit.h"

#include <gtest/gtest.h>

#include <string>

namespace zelvar::testing {
namespace {

struct UnitRow {
    const char* name;
    CentralUnit unit;
    const char* caption;
    const char* versionText;
};

class CentralUnits : public ::testing::TestWithParam<UnitRow> {};

TEST_P(CentralUnits, HaveACaptionAndAVersionText) {
    const UnitRow& row = GetParam();
    EXPECT_EQ(CentralUnitCaption(row.unit), row.caption);
    EXPECT_EQ(SystemVersionText(row.unit), row.versionText);
}

INSTANTIATE_TEST_SUITE_P(Types, CentralUnits,
                         ::testing::Values(
                             // No space between the type and the version of a KB-F.
                             UnitRow{"KBF", {1, 1020}, "KB-F", "KB-F1.02"},
                             UnitRow{"KBFWithLetter", {1, 1021}, "KB-F", "KB-F1.02 A"},
                             UnitRow{"KBFOld", {1, 0}, "KB-F", "KB-F0.00"},
                             UnitRow{"KBE", {2, 1020}, "KB-E", "KB-E 1.02"},
                             UnitRow{"KBG", {3, 2000}, "KB-G", "KB-G 2.00"},
                             UnitRow{"QLRX", {10, 1020}, "QLRX", "QLRX 1.02"},
                             UnitRow{"NotAnswering", {-1, -1}, "?", "?"},
                             UnitRow{"OtherType", {4, 1020}, "?", "?1.02"},
                             UnitRow{"TypeZero", {0, 1000}, "?", "?1.00"},
                             UnitRow{"BetweenTheKnownOnes", {9, 1001}, "?", "?1.00 A"},
                             UnitRow{"HighestType", {127, 3112}, "?", "?3.11 B"}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
