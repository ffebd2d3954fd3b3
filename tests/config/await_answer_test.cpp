// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/await_answer.h"

#include <gtest/gtest.h>

#include "config_fixture.h"

namespace zelvar::testing {
namespace {

constexpr double kPollTime = 0.25;

class AskModuleTest : public LinkFixture {
  protected:
    AskModuleTest() { port.replyDelay = kPollTime; }

    /// Sends a request and waits; the answer, value 7, comes with the k-th frame after it.
    Awaited Await(int afterPolls) {
        int left = afterPolls;
        port.responder = [left](const SentFrame&) mutable {
            return left-- == 0 ? WireFrame({7}) : EmptyReply();
        };
        return AskModule(link, clock, {1, {3}}, [](const Reply& reply) { return reply[1] == 7; });
    }
};

TEST_F(AskModuleTest, TakesTheReplyItself) {
    EXPECT_EQ(Await(0), Awaited::Answer);
    EXPECT_EQ(port.sent.size(), 1U);
}

TEST_F(AskModuleTest, TakesAnAnswerThatComesWithALaterPoll) {
    EXPECT_EQ(Await(3), Awaited::Answer);
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{3}, {}, {}, {}}));
}

TEST_F(AskModuleTest, TakesTheAnswerToThePollThatBeganBeforeTheLimit) {
    // The eighth poll begins after 1.75 seconds and ends when exactly 2.0 have passed.
    EXPECT_EQ(Await(8), Awaited::Answer);
}

TEST_F(AskModuleTest, SendsNothingMoreWhenExactlyTwoSecondsHavePassed) {
    EXPECT_EQ(Await(9), Awaited::Silence);
    EXPECT_EQ(port.sent.size(), 9U);
}

TEST_F(AskModuleTest, GivesUpWhenTheClockFallsBackAtMidnight) {
    port.replyDelay = 0;
    clock.now = kSecondsPerDay - 0.5;
    int replies = 0;
    const auto midnightPassesBeforeTheSecond = [&](const Reply&) {
        clock.now = ++replies == 2 ? 0.0 : clock.now;
        return false;
    };
    EXPECT_EQ(AskModule(link, clock, {1, {3}}, midnightPassesBeforeTheSecond), Awaited::Silence);
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{3}, {}}));
}

TEST_F(AskModuleTest, StopsAtAFailedPoll) {
    port.replies = {EmptyReply(), EmptyReply(), Bytes{}};
    EXPECT_EQ(AskModule(link, clock, {1, {3}}, [](const Reply&) { return false; }),
              Awaited::Failure);
    EXPECT_EQ(port.sent.size(), 3U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

}  // namespace
}  // namespace zelvar::testing
