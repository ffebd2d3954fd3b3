// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/await_answer.h"

#include <gtest/gtest.h>

#include "config_fixture.h"

namespace zelvar::testing {
namespace {

constexpr double kPollTime = 0.25;

class AwaitAnswerTest : public LinkFixture {
  protected:
    AwaitAnswerTest() { port.replyDelay = kPollTime; }

    /// Sends a request and waits; the answer, value 7, comes with the k-th frame after it.
    Awaited Await(int afterPolls) {
        int left = afterPolls;
        port.responder = [left](const SentFrame&) mutable {
            return left-- == 0 ? WireFrame({7}) : EmptyReply();
        };
        link.Transact({1, {3}});
        return AwaitAnswer(link, clock, [](const ReplyBuffer& reply) { return reply[1] == 7; });
    }
};

TEST_F(AwaitAnswerTest, TakesTheReplyItself) {
    EXPECT_EQ(Await(0), Awaited::Answer);
    EXPECT_EQ(port.sent.size(), 1U);
}

TEST_F(AwaitAnswerTest, TakesAnAnswerThatComesWithALaterPoll) {
    EXPECT_EQ(Await(3), Awaited::Answer);
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{3}, {}, {}, {}}));
}

TEST_F(AwaitAnswerTest, TakesTheAnswerToThePollThatBeganBeforeTheLimit) {
    // The eighth poll begins after 1.75 seconds and ends when exactly 2.0 have passed.
    EXPECT_EQ(Await(8), Awaited::Answer);
}

TEST_F(AwaitAnswerTest, SendsNothingMoreWhenExactlyTwoSecondsHavePassed) {
    EXPECT_EQ(Await(9), Awaited::Silence);
    EXPECT_EQ(port.sent.size(), 9U);
}

TEST_F(AwaitAnswerTest, GivesUpWhenTheClockFallsBackAtMidnight) {
    port.responder = [this](const SentFrame& frame) {
        clock.now = frame.values.empty() ? 0.0 : clock.now;
        return EmptyReply();
    };
    port.replyDelay = 0;
    clock.now = kSecondsPerDay - 0.5;
    link.Transact({1, {3}});
    EXPECT_EQ(AwaitAnswer(link, clock, [](const ReplyBuffer&) { return false; }), Awaited::Silence);
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{3}, {}}));
}

TEST_F(AwaitAnswerTest, StopsAtAFailedPoll) {
    port.replies = {EmptyReply(), EmptyReply(), Bytes{}};
    link.Transact({1, {3}});
    EXPECT_EQ(AwaitAnswer(link, clock, [](const ReplyBuffer&) { return false; }), Awaited::Failure);
    EXPECT_EQ(port.sent.size(), 3U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

}  // namespace
}  // namespace zelvar::testing
