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
    std::vector<std::pair<int, VDType>> lines;
    bool classic;
    Entries entries;
    int selected;
};

class TractionModules : public ::testing::TestWithParam<ListRow> {};

TEST_P(TractionModules, AreListedBehindTheirGroups) {
    const ListRow& row = GetParam();
    ModuleRegistry registry;
    for (const auto& [line, type] : row.lines) {
        registry.vdTypes.at(static_cast<unsigned>(line)) = type;
    }
    const SelectionList list = TractionModuleList(registry, row.classic);
    EXPECT_EQ(list.entries, row.entries);
    EXPECT_EQ(list.selected, row.selected);
}

INSTANTIATE_TEST_SUITE_P(
    NewView, TractionModules,
    ::testing::Values(
        ListRow{"None", {}, false, {}, -1},
        ListRow{"OneVdF",
                {{5, VDType::VdF}},
                false,
                {{"All_VDxx", -1}, {"All_VD-F", -2}, {" 5", 5}},
                2},
        ListRow{"OneVd60WithoutSecondary",
                {{0, VDType::Vd60}},
                false,
                {{"All_VDxx", -1}, {"All_VD60", -4}, {" 0.0", 0}},
                2},
        ListRow{"Vd60Pair",
                {{19, VDType::Vd60}, {51, VDType::Vd60}},
                false,
                {{"All_VDxx", -1}, {"All_VD60", -4}, {" 19.0", 19}, {" 19.1", 51}},
                2},
        ListRow{"OneQlrx", {{31, VDType::QlrxS}}, false, {{"All_QLRX", -3}, {" 31", 31}}, 1},
        ListRow{"OneUnknown", {{7, VDType::Unknown}}, false, {{" 7", 7}}, 0},
        ListRow{"AllTypes",
                {{1, VDType::Unknown},
                 {2, VDType::QlrxS},
                 {3, VDType::VdF},
                 {4, VDType::Vd60},
                 {36, VDType::Vd60},
                 {30, VDType::VdF}},
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
        ListRow{"SecondaryWithoutItsPrimary", {{40, VDType::Vd60}}, false, {}, -1},
        ListRow{"SecondaryBesideAnotherType",
                {{4, VDType::VdF}, {36, VDType::Vd60}},
                false,
                {{"All_VDxx", -1}, {"All_VD-F", -2}, {" 4", 4}},
                2}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    ClassicView, TractionModules,
    ::testing::Values(
        ListRow{"None", {}, true, {}, -1},
        ListRow{"OneVdF", {{5, VDType::VdF}}, true, {{"All_VD-F", -2}, {" 5", 5}}, 1},
        ListRow{"BothTypes",
                {{15, VDType::QlrxS}, {0, VDType::VdF}},
                true,
                {{"All_VD-F", -2}, {"All_QLRX", -3}, {" 0", 0}, {" 15", 15}},
                2},
        // Lines of an earlier new view stay in the registry, unseen.
        ListRow{"LinesBeyondItsRange", {{16, VDType::VdF}, {31, VDType::QlrxS}}, true, {}, -1}),
    [](const auto& row) { return std::string(row.param.name); });

/// Point-motor modules have no type.
constexpr VDType kHere = VDType::Unknown;

class PointMotorModules : public ::testing::TestWithParam<ListRow> {};

TEST_P(PointMotorModules, AreListedBehindAll) {
    const ListRow& row = GetParam();
    ModuleRegistry registry;
    for (const auto& [position, present] : row.lines) {
        registry.jsPresent.at(static_cast<unsigned>(position)) = present != VDType::Absent;
    }
    const SelectionList list = PointMotorModuleList(registry, row.classic);
    EXPECT_EQ(list.entries, row.entries);
    EXPECT_EQ(list.selected, row.selected);
}

INSTANTIATE_TEST_SUITE_P(
    BothViews, PointMotorModules,
    ::testing::Values(
        ListRow{"None", {}, false, {}, -1},
        ListRow{"One", {{9, kHere}}, false, {{"All", -1}, {" 9", 9}}, 1},
        ListRow{"FirstAndLast",
                {{15, kHere}, {0, kHere}},
                false,
                {{"All", -1}, {" 0", 0}, {" 15", 15}},
                1},
        ListRow{"ClassicNone", {{8, kHere}}, true, {}, -1},
        ListRow{"ClassicLast", {{7, kHere}, {8, kHere}}, true, {{"All", -1}, {" 7", 7}}, 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ModuleRegistryTest, StartsWithoutModules) {
    const ModuleRegistry registry;
    for (const VDType type : registry.vdTypes) {
        EXPECT_EQ(type, VDType::Absent);
    }
    for (const bool present : registry.jsPresent) {
        EXPECT_FALSE(present);
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
