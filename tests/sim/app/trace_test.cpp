// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/trace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <gmock/gmock.h>

#include "sim/protocol/wire.h"

namespace zelvar::sim {
namespace {

using testing::HasSubstr;

class TraceTest : public testing::Test {
  protected:
    std::string Command(const Payload& data, std::uint8_t bits = 0) {
        return trace_.Frame("12:00", false, EncodeFrame(data, bits));
    }
    std::string Reply(const Payload& data, std::uint8_t bits = 0) {
        return trace_.Frame("12:00", true, EncodeFrame(data, bits));
    }
    /// What a poll and its reply show.
    std::string Poll(const Payload& reply = {}, std::uint8_t replyBits = 0,
                     std::uint8_t pollBits = 0) {
        const std::string lines = Command({}, pollBits);
        return lines + Reply(reply, replyBits);
    }
    static std::ptrdiff_t Lines(const std::string& text) {
        return std::count(text.begin(), text.end(), '\n');
    }

    Trace trace_{Trace::Polls::kWithoutEmpty};
};

TEST_F(TraceTest, ShowsCommandsAtOnceAndTheirReplies) {
    EXPECT_THAT(Command({1, 0}), HasSubstr("  > 0A 81 80 F5 "));
    EXPECT_THAT(Reply({}), HasSubstr("acknowledged\n"));
}

TEST_F(TraceTest, LeavesOutEmptyPolls) {
    EXPECT_EQ(Poll(), "");
    EXPECT_EQ(Poll(), "");
}

TEST_F(TraceTest, ShowsEmptyPollsWhenAsked) {
    trace_ = Trace(Trace::Polls::kAll);
    EXPECT_THAT(Command({}), HasSubstr("poll\n"));
    EXPECT_THAT(Reply({}), HasSubstr("nothing to report\n"));
}

TEST_F(TraceTest, ShowsPollsThatBringSomething) {
    const std::string lines = Poll({51, 5});
    EXPECT_THAT(lines, HasSubstr("poll\n"));
    EXPECT_THAT(lines, HasSubstr("report: overcurrent in block 133"));
    EXPECT_EQ(Lines(lines), 2);
}

TEST_F(TraceTest, ShowsAPollWithoutAnyAnswerBeforeTheNextFrame) {
    EXPECT_EQ(Command({}), "");
    EXPECT_EQ(Lines(Command({})), 1);
    EXPECT_EQ(Lines(Command({1, 0})), 2);
}

TEST_F(TraceTest, ShowsAPollWhoseReplyIsBroken) {
    Command({});
    const std::uint8_t shortReply[] = {0x08};
    EXPECT_EQ(Lines(trace_.Frame("12:00", true, shortReply)), 2);
}

TEST_F(TraceTest, ShowsOnceThatTheStateHasChanged) {
    EXPECT_THAT(Poll({}, kHeaderFaultBit), HasSubstr("nothing to report [fault]"));
    EXPECT_EQ(Poll({}, kHeaderFaultBit), "");
    EXPECT_THAT(Poll({}, kHeaderHoldBit), HasSubstr("[hold]"));
    EXPECT_EQ(Lines(Poll()), 2);
    EXPECT_EQ(Poll(), "");
    EXPECT_THAT(Poll({}, 0, kHeaderStopBit), HasSubstr("poll [stop]"));
    EXPECT_EQ(Poll({}, 0, kHeaderStopBit), "");
}

}  // namespace
}  // namespace zelvar::sim
