// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/reports.h"

#include <gtest/gtest.h>

#include <string>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

struct OvercurrentRow {
    const char* name;
    std::uint8_t r1;
    std::uint8_t r2;
    OvercurrentReport report;
};

class Overcurrent : public ::testing::TestWithParam<OvercurrentRow> {};

TEST_P(Overcurrent, IsRead) {
    const OvercurrentRow& row = GetParam();
    const OvercurrentReport report = ReadOvercurrentReport(MakeReply(0x0A, {row.r1, row.r2}));
    EXPECT_EQ(report, row.report);
}

INSTANTIATE_TEST_SUITE_P(
    Reports, Overcurrent,
    ::testing::Values(OvercurrentRow{"HighBlockDetected", 0x33, 5, {133, true}},
                      OvercurrentRow{"LowBlockReleased", 0x30, 5, {5, false}},
                      OvercurrentRow{"BlockZeroDetected", 0x32, 0, {0, true}},
                      OvercurrentRow{"BlockZeroReleased", 0x30, 0, {0, false}},
                      OvercurrentRow{"LastBlockReleased", 0x31, 127, {255, false}}),
    [](const auto& row) { return std::string(row.param.name); });

struct SpeedRow {
    const char* name;
    std::vector<int> values;
    BlockSpeedReport report;
};

class BlockSpeed : public ::testing::TestWithParam<SpeedRow> {};

TEST_P(BlockSpeed, IsRead) {
    const BlockSpeedReport report = ReadBlockSpeedReport(MakeReply(0x0B, GetParam().values));
    EXPECT_EQ(report, GetParam().report);
}

INSTANTIATE_TEST_SUITE_P(
    Reports, BlockSpeed,
    ::testing::Values(SpeedRow{"Forward", {0x22, 5, 0x4C}, {5, 12, true}},
                      SpeedRow{"Backward", {0x22, 5, 0x0C}, {5, 12, false}},
                      SpeedRow{"HighBlock", {0x23, 127, 0x40}, {255, 0, true}},
                      SpeedRow{"FastestForward", {0x22, 0, 0x7F}, {0, 63, true}},
                      SpeedRow{"FastestBackward", {0x22, 0, 0x3F}, {0, 63, false}}),
    [](const auto& row) { return std::string(row.param.name); });

struct FeedbackRow {
    const char* name;
    std::uint8_t r1;
    std::uint8_t r2;
    FeedbackReport report;
};

class Feedback : public ::testing::TestWithParam<FeedbackRow> {};

TEST_P(Feedback, IsRead) {
    EXPECT_EQ(ReadFeedbackReport(MakeReply(0x0A, {GetParam().r1, GetParam().r2})),
              GetParam().report);
}

INSTANTIATE_TEST_SUITE_P(Reports, Feedback,
                         ::testing::Values(FeedbackRow{"FirstInactive", 0x40, 0, {0, false}},
                                           FeedbackRow{"FirstActive", 0x50, 0, {0, true}},
                                           FeedbackRow{"Middle", 0x51, 72, {200, true}},
                                           FeedbackRow{"LastInactive", 0x4F, 127, {2047, false}},
                                           FeedbackRow{"LastActive", 0x5F, 127, {2047, true}},
                                           FeedbackRow{"Bit5DoesNotCount", 0x60, 3, {3, false}}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
