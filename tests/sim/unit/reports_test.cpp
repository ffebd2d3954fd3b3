// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/reports.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

TEST(ReportQueueTest, HandsOutTheOldestFirst) {
    ReportQueue queue;
    queue.Push({1});
    queue.Push({2});
    EXPECT_EQ(queue.NextForPoll(), Payload{1});
    EXPECT_EQ(queue.NextForPoll(), Payload{2});
    EXPECT_EQ(queue.NextForPoll(), std::nullopt);
}

TEST(ReportQueueTest, KeepsAnEntryUntilItsPoll) {
    ReportQueue queue;
    queue.Push({1}, 3);
    queue.Push({2}, 1);
    EXPECT_EQ(queue.NextForPoll(), Payload{2});
    EXPECT_EQ(queue.NextForPoll(), std::nullopt);
    EXPECT_EQ(queue.NextForPoll(), Payload{1});
}

TEST(ReportQueueTest, ANewerValueTakesThePlaceOfTheOlder) {
    ReportQueue queue;
    queue.PushLatest(BlockSpeedReport(5, 10, true));
    queue.PushLatest(BlockSpeedReport(6, 1, true));
    queue.PushLatest(BlockSpeedReport(5, 11, false));
    EXPECT_EQ(queue.size(), 2U);
    EXPECT_EQ(queue.NextForPoll(), BlockSpeedReport(5, 11, false));
}

TEST(ReportQueueTest, DropsTheOldestWithoutPolls) {
    ReportQueue queue;
    for (std::size_t count = 0; count <= ReportQueue::kMaxPending; ++count) {
        queue.Push({static_cast<int>(count % 100)});
    }
    EXPECT_EQ(queue.size(), ReportQueue::kMaxPending);
    EXPECT_EQ(queue.NextForPoll(), Payload{1});
}

TEST(ReportsTest, HaveTheseValues) {
    EXPECT_EQ(OvercurrentReport(133, true), (Payload{0x33, 5}));
    EXPECT_EQ(OvercurrentReport(5, false), (Payload{0x30, 5}));
    EXPECT_EQ(OvercurrentReport(255, false), (Payload{0x31, 127}));
    EXPECT_EQ(BlockSpeedReport(5, 12, true), (Payload{34, 5, 76}));
    EXPECT_EQ(BlockSpeedReport(200, 63, false), (Payload{35, 72, 63}));
    EXPECT_EQ(FeedbackReport(389, true), (Payload{64 + 19, 5}));
    EXPECT_EQ(FeedbackReport(2047, false), (Payload{64 + 15, 127}));
}

}  // namespace
}  // namespace zelvar::sim
