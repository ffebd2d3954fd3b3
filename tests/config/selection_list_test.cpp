// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/selection_list.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace zelvar {

static void PrintTo(const SelectionEntry& entry, std::ostream* out) {
    *out << '"' << entry.text << "\"=" << entry.data;
}

namespace testing {
namespace {

using Entries = std::vector<SelectionEntry>;

struct ListRow {
    const char* name;
    std::vector<std::pair<int, std::int16_t>> lines;
    bool classic;
    Entries entries;
    int selected;
};

class TractionModules : public ::testing::TestWithParam<ListRow> {};

TEST_P(TractionModules, AreListedBehindTheirGroups) {
    const ListRow& row = GetParam();
    ModuleRegistry registry;
    for (const auto& [line, type] : row.lines) {
        registry.vdType[static_cast<std::size_t>(line)] = type;
    }
    const SelectionList list = TractionModuleList(registry, row.classic);
    EXPECT_EQ(list.entries, row.entries);
    EXPECT_EQ(list.selected, row.selected);
}

INSTANTIATE_TEST_SUITE_P(
    NewView, TractionModules,
    ::testing::Values(
        ListRow{"None", {}, false, {}, -1},
        ListRow{"OneVdF", {{5, kVdF}}, false, {{"All_VDxx", -1}, {"All_VD-F", -2}, {" 5", 5}}, 2},
        ListRow{"OneVd60WithoutSecondary",
                {{0, kVd60}},
                false,
                {{"All_VDxx", -1}, {"All_VD60", -4}, {" 0.0", 0}},
                2},
        ListRow{"Vd60Pair",
                {{19, kVd60}, {51, kVd60}},
                false,
                {{"All_VDxx", -1}, {"All_VD60", -4}, {" 19.0", 19}, {" 19.1", 51}},
                2},
        ListRow{"OneQlrx", {{31, kQlrxS}}, false, {{"All_QLRX", -3}, {" 31", 31}}, 1},
        ListRow{"OneUnknown", {{7, kVdUnknown}}, false, {{" 7", 7}}, 0},
        ListRow{"AllTypes",
                {{1, kVdUnknown}, {2, kQlrxS}, {3, kVdF}, {4, kVd60}, {36, kVd60}, {30, kVdF}},
                false,
                {{"All_VDxx", -1},
                 {"All_VD60", -4},
                 {"All_VD-F", -2},
                 {"All_QLRX", -3},
                 {" 1", 1},
                 {" 2", 2},
                 {" 3", 3},
                 {" 4.0", 4},
                 {" 4.1", 36},
                 {" 30", 30}},
                4},
        ListRow{"SecondaryWithoutItsPrimary", {{40, kVd60}}, false, {}, -1},
        ListRow{"SecondaryBesideAnotherType",
                {{4, kVdF}, {36, kVd60}},
                false,
                {{"All_VDxx", -1}, {"All_VD-F", -2}, {" 4", 4}},
                2}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    ClassicView, TractionModules,
    ::testing::Values(ListRow{"None", {}, true, {}, -1},
                      ListRow{"OneVdF", {{5, kVdF}}, true, {{"All_VD-F", -2}, {" 5", 5}}, 1},
                      ListRow{"BothTypes",
                              {{15, kQlrxS}, {0, kVdF}},
                              true,
                              {{"All_VD-F", -2}, {"All_QLRX", -3}, {" 0", 0}, {" 15", 15}},
                              2},
                      // Lines of an earlier new view stay in the registry, unseen.
                      ListRow{"LinesBeyondItsRange", {{16, kVdF}, {31, kQlrxS}}, true, {}, -1}),
    [](const auto& row) { return std::string(row.param.name); });

class PointMotorModules : public ::testing::TestWithParam<ListRow> {};

TEST_P(PointMotorModules, AreListedBehindAll) {
    const ListRow& row = GetParam();
    ModuleRegistry registry;
    for (const auto& [position, present] : row.lines) {
        registry.jsPresent[static_cast<std::size_t>(position)] = present;
    }
    const SelectionList list = PointMotorModuleList(registry, row.classic);
    EXPECT_EQ(list.entries, row.entries);
    EXPECT_EQ(list.selected, row.selected);
}

INSTANTIATE_TEST_SUITE_P(
    BothViews, PointMotorModules,
    ::testing::Values(
        ListRow{"None", {}, false, {}, -1},
        ListRow{"One", {{9, kJsPresent}}, false, {{"All", -1}, {" 9", 9}}, 1},
        ListRow{"FirstAndLast",
                {{15, kJsPresent}, {0, kJsPresent}},
                false,
                {{"All", -1}, {" 0", 0}, {" 15", 15}},
                1},
        ListRow{"ClassicNone", {{8, kJsPresent}}, true, {}, -1},
        ListRow{
            "ClassicLast", {{7, kJsPresent}, {8, kJsPresent}}, true, {{"All", -1}, {" 7", 7}}, 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ModuleRegistryTest, StartsWithoutModules) {
    const ModuleRegistry registry;
    EXPECT_EQ(registry.vdType.size(), 65U);
    EXPECT_EQ(registry.jsPresent.size(), 17U);
    for (const std::int16_t type : registry.vdType) {
        EXPECT_EQ(type, -1);
    }
    for (const std::int16_t present : registry.jsPresent) {
        EXPECT_EQ(present, -1);
    }
}

TEST(JsAddressTest, PutsEightModulesOnEachChannel) {
    constexpr int kExpected[] = {0, 1, 2, 3, 4, 5, 6, 7, 16, 17, 18, 19, 20, 21, 22, 23};
    for (int position = 0; position < 16; ++position) {
        EXPECT_EQ(JsAddressOf(position), kExpected[position]);
    }
}

}  // namespace
}  // namespace testing
}  // namespace zelvar
