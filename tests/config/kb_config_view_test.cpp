// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/kb_config_view.h"

#include <gtest/gtest.h>

#include <string>

namespace zelvar::testing {
namespace {

constexpr KBConfigView kNothing{false, false};
constexpr KBConfigView kFrame{true, false};
constexpr KBConfigView kEverything{true, true};

struct ViewRow {
    const char* name;
    CentralUnit unit;
    KBConfigView view;
};

class KBConfigViews : public ::testing::TestWithParam<ViewRow> {};

TEST_P(KBConfigViews, ShowWhatTheUnitSupports) {
    EXPECT_EQ(KBConfigViewOf(GetParam().unit), GetParam().view);
}

INSTANTIATE_TEST_SUITE_P(Types, KBConfigViews,
                         ::testing::Values(ViewRow{"KBF", {1, 1020}, kNothing},
                                           ViewRow{"KBFOld", {1, 0}, kNothing},
                                           ViewRow{"KBE", {2, 1020}, kEverything},
                                           ViewRow{"KBEOld", {2, 1010}, kEverything},
                                           ViewRow{"KBG", {3, 2000}, kEverything},
                                           ViewRow{"QLRX", {10, 1020}, kFrame},
                                           ViewRow{"QLRXNew", {10, 1021}, kFrame},
                                           ViewRow{"NotAnswering", {-1, -1}, kEverything},
                                           ViewRow{"TypeZero", {0, 1000}, kEverything},
                                           ViewRow{"BetweenTheKnownOnes", {9, 1001}, kEverything},
                                           ViewRow{"HighestType", {127, 3112}, kEverything}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
