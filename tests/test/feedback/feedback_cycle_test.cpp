// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "test/feedback/feedback_fixture.h"

namespace zelvar::testing {
namespace {

using FeedbackCycleTest = FeedbackFixture;

TEST_F(FeedbackCycleTest, ACycleAsksForEveryInputShownOncePerTickInAscendingOrder) {
    Begin();
    port.responder = [](const SentFrame& frame) {
        return frame.values.size() == 2 && frame.values[0] >= 96
                   ? Report((frame.values[0] - 96) * 128 + frame.values[1],
                            frame.values[1] % 2 != 0)
                   : EmptyReply();
    };
    ChooseLayout(3);
    SetBase(1024);
    RequestData();
    EXPECT_TRUE(TakeSent().empty()) << "the ticks do the asking";
    EXPECT_EQ(GroundOf(0), kNoInformation);
    Poll();
    EXPECT_EQ(TakeSent(), (Sent{{96 + 8, 0}}));
    EXPECT_EQ(GroundOf(0), kInactive);
    std::vector<int> expected;
    for (int row = 0; row < 8; ++row) {
        for (const int number : From(1024 + 128 * row, 16)) {
            expected.push_back(number);
        }
    }
    expected.erase(expected.begin());
    EXPECT_EQ(AskedIn(127), expected);
    for (int i = 0; i < 128; ++i) {
        EXPECT_EQ(GroundOf(i), i % 2 != 0 ? kActive : kInactive) << i;
    }
    Poll();
    EXPECT_EQ(TakeSent(), (Sent{{}})) << "the cycle is over";
}

TEST_F(FeedbackCycleTest, ACycleWithoutReportsAsksForEachInputOnceAllTheSame) {
    Begin();
    RequestData();
    EXPECT_EQ(AskedIn(200), From(0, 128));
    EXPECT_EQ(GroundOf(0), kNoInformation);
    EXPECT_EQ(GroundOf(127), kNoInformation);
}

TEST_F(FeedbackCycleTest, ACycleThatMeetsSilenceTellsSoOnceAndGoesOnWithTheNextCommand) {
    Begin();
    RequestData();
    Poll();
    port.replies = {Bytes{}};
    EXPECT_EQ(AskedIn(50), (std::vector<int>{0, 1}));
    EXPECT_EQ(messageBox.shown, (std::vector<ShownBox>{Exclamation("No response from Zelvar")}));
    StartPolling();
    EXPECT_EQ(AskedIn(200), From(2, 126));
}

TEST_F(FeedbackCycleTest, AReportThatComesUnaskedTakesItsInputOutOfTheCycle) {
    Begin();
    RequestData();
    port.replies = {Report(0, true), Report(5, true), EmptyReply(), Report(1, false),
                    Report(2000, true)};
    std::vector<int> expected = From(0, 128);
    expected.erase(expected.begin() + 5);
    EXPECT_EQ(AskedIn(200), expected);
    EXPECT_EQ(GroundOf(0), kActive);
    EXPECT_EQ(GroundOf(5), kActive);
    EXPECT_EQ(GroundOf(1), kInactive);
    EXPECT_EQ(GroundOf(2), kNoInformation);
}

TEST_F(FeedbackCycleTest, RequestingTwiceRestartsAt0AndAsksForAllAgain) {
    Begin();
    RequestData();
    EXPECT_EQ(AskedIn(10), From(0, 10));
    Receive(Report(200, true));
    RequestData();
    EXPECT_EQ(AskedIn(200), From(0, 128));
    SetBase(100);
    EXPECT_EQ(GroundOf(100), kActive) << "input 200 was not requested again";
}

TEST_F(FeedbackCycleTest, WhatIsRequestedStaysWantedWhenOtherInputsAreShown) {
    Begin();
    RequestData();
    SetBase(1000);
    EXPECT_EQ(AskedIn(3), From(0, 3));
}

}  // namespace
}  // namespace zelvar::testing
