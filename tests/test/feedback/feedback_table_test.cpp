// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/feedback/feedback_table.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace zelvar::testing {
namespace {

struct LayoutCase {
    const char* name;
    int layout;
    /// Inputs between the beginnings of two rows.
    int stride;
    int maximumBase;
};

void PrintTo(const LayoutCase& row, std::ostream* out) {
    *out << row.name;
}

class FeedbackLayouts : public ::testing::TestWithParam<LayoutCase> {};

TEST_P(FeedbackLayouts, NumberAll128Labels) {
    for (const int base : {0, 7, GetParam().maximumBase}) {
        int label = 0;
        for (int row = 0; row < 8; ++row) {
            for (int column = 0; column < 16; ++column) {
                EXPECT_EQ(FeedbackNumber(GetParam().layout, base, label),
                          base + row * GetParam().stride + column)
                    << "label " << label << " with base " << base;
                ++label;
            }
        }
    }
}

TEST_P(FeedbackLayouts, HaveTheLargestBaseThatKeepsTheirSpanWithinTheInputs) {
    EXPECT_EQ(FeedbackMaximumBase(GetParam().layout), GetParam().maximumBase);
    EXPECT_EQ(GetParam().maximumBase + 8 * GetParam().stride, 2048);
    EXPECT_LE(FeedbackNumber(GetParam().layout, GetParam().maximumBase, 127), 2047);
}

TEST_P(FeedbackLayouts, FindTheLabelOfEveryInputAndNoOther) {
    constexpr int kBase = 100;
    std::vector<int> labelOf(2049, -1);
    for (int label = 0; label < 128; ++label) {
        labelOf[static_cast<std::size_t>(FeedbackNumber(GetParam().layout, kBase, label))] = label;
    }
    for (int input = 0; input < 2049; ++input) {
        EXPECT_EQ(FeedbackLabelOf(GetParam().layout, kBase, input).value_or(-1),
                  labelOf[static_cast<std::size_t>(input)])
            << "input " << input;
    }
}

INSTANTIATE_TEST_SUITE_P(All, FeedbackLayouts,
                         ::testing::Values(LayoutCase{"Consecutive", 0, 16, 1920},
                                           LayoutCase{"Mod32", 1, 32, 1792},
                                           LayoutCase{"Mod64", 2, 64, 1536},
                                           LayoutCase{"Mod128", 3, 128, 1024}),
                         [](const auto& row) { return row.param.name; });

TEST(FeedbackLayout, Mod64FromBase0ShowsTheFirst16OfEach64) {
    EXPECT_EQ(FeedbackNumber(2, 0, 0), 0);
    EXPECT_EQ(FeedbackNumber(2, 0, 15), 15);
    EXPECT_EQ(FeedbackNumber(2, 0, 16), 64);
    EXPECT_EQ(FeedbackNumber(2, 0, 31), 79);
    EXPECT_EQ(FeedbackNumber(2, 0, 127), 463);
}

TEST(FeedbackTable, KnowsAndWantsNothingAtFirst) {
    FeedbackTable table;
    for (int index = 0; index <= 2048; ++index) {
        EXPECT_EQ(table.State(index), -1) << index;
    }
    EXPECT_EQ(table.RequestPointer(), -1);
    EXPECT_EQ(table.fbRequestState(), -1);
}

TEST(FeedbackTable, TakesStatesFrom0To2048AndRefusesOthers) {
    FeedbackTable table;
    EXPECT_TRUE(table.Update(0, 1));
    EXPECT_TRUE(table.Update(2047, 0));
    EXPECT_TRUE(table.Update(2048, 1));
    EXPECT_FALSE(table.Update(-1, 1));
    EXPECT_FALSE(table.Update(2049, 1));
    EXPECT_EQ(table.State(0), 1);
    EXPECT_EQ(table.State(2047), 0);
    EXPECT_EQ(table.State(2048), 1);
    EXPECT_EQ(table.State(1), -1);
    EXPECT_EQ(table.State(-1), -1);
    EXPECT_EQ(table.State(2049), -1);
}

/// All inputs that a cycle gives, in order.
std::vector<int> RestOfCycle(FeedbackTable& table) {
    std::vector<int> asked;
    for (int index = table.fbRequestState(); index != -1 && asked.size() < 3000;
         index = table.fbRequestState()) {
        asked.push_back(index);
    }
    return asked;
}

TEST(FeedbackTable, AsksForEachWantedInputOnceInAscendingOrder) {
    FeedbackTable table;
    EXPECT_TRUE(table.RequestData(std::vector<int>{2047, 16, 0, 300, 16}));
    EXPECT_EQ(table.RequestPointer(), 0);
    EXPECT_EQ(table.State(300), -2);
    EXPECT_EQ(RestOfCycle(table), (std::vector<int>{0, 16, 300, 2047}));
    EXPECT_EQ(table.RequestPointer(), -1);
    EXPECT_EQ(table.State(300), -1);
    EXPECT_EQ(table.fbRequestState(), -1);
}

TEST(FeedbackTable, ForgetsTheWishOfTheInputItAsksFor) {
    FeedbackTable table;
    table.RequestData(std::vector<int>{5, 6});
    EXPECT_EQ(table.fbRequestState(), 5);
    EXPECT_EQ(table.State(5), -1);
    EXPECT_EQ(table.State(6), -2);
    EXPECT_EQ(table.RequestPointer(), 5);
}

TEST(FeedbackTable, PassesOverAnInputWhoseReportCameUnasked) {
    FeedbackTable table;
    table.RequestData(std::vector<int>{1, 2, 3});
    EXPECT_EQ(table.fbRequestState(), 1);
    table.Update(2, 1);
    EXPECT_EQ(table.fbRequestState(), 3);
    EXPECT_EQ(table.fbRequestState(), -1);
    EXPECT_EQ(table.State(2), 1);
}

TEST(FeedbackTable, RestartsTheCycleAt0AndKeepsWhatIsAnswered) {
    FeedbackTable table;
    table.RequestData(std::vector<int>{10, 20, 30});
    EXPECT_EQ(table.fbRequestState(), 10);
    table.Update(10, 1);
    EXPECT_EQ(table.fbRequestState(), 20);
    table.Update(20, 0);
    EXPECT_TRUE(table.RequestData(std::vector<int>{20}));
    EXPECT_EQ(table.RequestPointer(), 0);
    EXPECT_EQ(table.State(10), 1);
    EXPECT_EQ(RestOfCycle(table), (std::vector<int>{20, 30}));
}

TEST(FeedbackTable, PassesOverNegativeNumbers) {
    FeedbackTable table;
    EXPECT_TRUE(table.RequestData(std::vector<int>{-1, 4, -300}));
    EXPECT_EQ(RestOfCycle(table), (std::vector<int>{4}));
}

TEST(FeedbackTable, StopsAtANumberAbove2048WithoutBeginningACycle) {
    FeedbackTable table;
    EXPECT_FALSE(table.RequestData(std::vector<int>{4, 2049, 5}));
    EXPECT_EQ(table.RequestPointer(), -1);
    EXPECT_EQ(table.State(4), -2);
    EXPECT_EQ(table.State(5), -1);
}

TEST(FeedbackTable, NeverAsksForTheEntryBehindTheLastInput) {
    FeedbackTable table;
    EXPECT_TRUE(table.RequestData(std::vector<int>{2048}));
    EXPECT_EQ(table.fbRequestState(), -1);
    EXPECT_EQ(table.RequestPointer(), -1);
    EXPECT_EQ(table.State(2048), -2);
}

}  // namespace
}  // namespace zelvar::testing
