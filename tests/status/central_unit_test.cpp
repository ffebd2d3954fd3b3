// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/central_unit.h"

#include <gtest/gtest.h>

#include <string>

namespace zelvar::testing {
namespace {

constexpr KBConfigView kNothing{false, false, false};
constexpr KBConfigView kFrame{true, false, false};
constexpr KBConfigView kFrameAndSpare{true, false, true};
constexpr KBConfigView kFull{true, true, false};
constexpr KBConfigView kEverything{true, true, true};

struct UnitRow {
    const char* name;
    CentralUnit unit;
    const char* caption;
    const char* versionText;
    KBConfigView view;
};

class CentralUnits : public ::testing::TestWithParam<UnitRow> {};

TEST_P(CentralUnits, HaveACaptionAVersionTextAndAView) {
    const UnitRow& row = GetParam();
    EXPECT_EQ(CentralUnitCaption(row.unit), row.caption);
    EXPECT_EQ(SystemVersionText(row.unit), row.versionText);
    EXPECT_EQ(KBConfigViewOf(row.unit), row.view);
}

INSTANTIATE_TEST_SUITE_P(
    Types, CentralUnits,
    ::testing::Values(
        // No blank between the type and the version of a KB-F.
        UnitRow{"KBF", {1, 1020}, "KB-F", "KB-F1.02", kNothing},
        UnitRow{"KBFWithLetter", {1, 1021}, "KB-F", "KB-F1.02 A", kNothing},
        UnitRow{"KBFOld", {1, 0}, "KB-F", "KB-F0.00", kNothing},
        UnitRow{"KBE", {2, 1020}, "KB-E", "KB-E 1.02", kEverything},
        UnitRow{"KBEAtTheLimit", {2, 1010}, "KB-E", "KB-E 1.01", kFull},
        UnitRow{"KBEAboveTheLimit", {2, 1011}, "KB-E", "KB-E 1.01 A", kEverything},
        UnitRow{"KBG", {3, 2000}, "KB-G", "KB-G 2.00", kEverything},
        UnitRow{"KBGAtTheLimit", {3, 1010}, "KB-G", "KB-G 1.01", kFull},
        UnitRow{"KBGAboveTheLimit", {3, 1011}, "KB-G", "KB-G 1.01 A", kEverything},
        UnitRow{"QLRXAtTheLimit", {10, 1020}, "QLRX", "QLRX 1.02", kFrame},
        UnitRow{"QLRXAboveTheLimit", {10, 1021}, "QLRX", "QLRX 1.02 A", kFrameAndSpare},
        UnitRow{"QLRXAtTheLimitOfTheOthers", {10, 1011}, "QLRX", "QLRX 1.01 A", kFrame},
        UnitRow{"NotAnswering", {-1, -1}, "?", "?", kEverything},
        UnitRow{"OtherType", {4, 1020}, "?", "?1.02", kEverything},
        UnitRow{"TypeZero", {0, 1000}, "?", "?1.00", kEverything},
        UnitRow{"BetweenTheKnownOnes", {9, 1001}, "?", "?1.00 A", kEverything},
        UnitRow{"HighestType", {127, 3112}, "?", "?3.11 B", kEverything}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
