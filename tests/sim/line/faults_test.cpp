// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/faults.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

using Bytes = std::vector<std::uint8_t>;
using std::chrono::milliseconds;

const Bytes kReply = {0x09, 0xF7, 0x80};
const Bytes kWrong = {0x09, 0xF7, 0x81};

class FaultsTest : public testing::Test {
  protected:
    Bytes Next() {
        const auto outgoing = faults_.Apply(kReply);
        return outgoing ? outgoing->bytes : Bytes{};
    }

    Faults faults_;
};

TEST_F(FaultsTest, LeaveAReplyAloneAtTheStart) {
    const auto outgoing = faults_.Apply(kReply);
    ASSERT_TRUE(outgoing);
    EXPECT_EQ(outgoing->bytes, kReply);
    EXPECT_EQ(outgoing->delay, milliseconds(0));
    EXPECT_EQ(outgoing->byteGap, milliseconds(0));
}

TEST_F(FaultsTest, SilentAnswersNothingUntilItIsOff) {
    faults_.SetSilent(true);
    EXPECT_TRUE(faults_.silent());
    EXPECT_FALSE(faults_.Apply(kReply));
    EXPECT_FALSE(faults_.Apply(kReply));
    faults_.SetSilent(false);
    EXPECT_FALSE(faults_.silent());
    EXPECT_EQ(Next(), kReply);
}

TEST_F(FaultsTest, SilentAfterAnswersThatManyFirst) {
    faults_.SetSilentAfter(2);
    EXPECT_EQ(Next(), kReply);
    EXPECT_FALSE(faults_.silent());
    EXPECT_EQ(Next(), kReply);
    EXPECT_TRUE(faults_.silent());
    EXPECT_FALSE(faults_.Apply(kReply));
    faults_.SetSilent(false);
    EXPECT_EQ(Next(), kReply);
    EXPECT_EQ(Next(), kReply);
    EXPECT_EQ(Next(), kReply);
}

TEST_F(FaultsTest, LateDelaysThatManyReplies) {
    faults_.SetLate(milliseconds(300), 1);
    EXPECT_EQ(faults_.Apply(kReply)->delay, milliseconds(300));
    EXPECT_EQ(faults_.Apply(kReply)->delay, milliseconds(0));
}

TEST_F(FaultsTest, LateWithoutANumberHoldsUntilZero) {
    faults_.SetLate(milliseconds(300), std::nullopt);
    for (int reply = 0; reply < 100; ++reply) {
        EXPECT_EQ(faults_.Apply(kReply)->delay, milliseconds(300));
    }
    faults_.SetLate(milliseconds(0), std::nullopt);
    EXPECT_EQ(faults_.Apply(kReply)->delay, milliseconds(0));
}

TEST_F(FaultsTest, BadChecksumSpoilsThatManyReplies) {
    faults_.SetBadChecksums(1);
    EXPECT_EQ(Next(), kWrong);
    EXPECT_EQ(Next(), kReply);
}

TEST_F(FaultsTest, ShortLeavesTheChecksumOut) {
    faults_.SetShort(1);
    EXPECT_EQ(Next(), (Bytes{0x09, 0xF7}));
    EXPECT_EQ(Next(), kReply);
}

TEST_F(FaultsTest, DoubleSendsTheReplyTwice) {
    faults_.SetDouble(1);
    EXPECT_EQ(Next(), (Bytes{0x09, 0xF7, 0x80, 0x09, 0xF7, 0x80}));
    EXPECT_EQ(Next(), kReply);
}

TEST_F(FaultsTest, StrayBytesGoOutOnceBeforeTheReply) {
    faults_.AddStray({0xFF});
    faults_.AddStray({0x01});
    EXPECT_EQ(Next(), (Bytes{0xFF, 0x01, 0x09, 0xF7, 0x80}));
    EXPECT_EQ(Next(), kReply);
}

TEST_F(FaultsTest, StrayBytesWaitForAReplyThatGoesOut) {
    faults_.AddStray({0xFF});
    faults_.SetSilent(true);
    EXPECT_FALSE(faults_.Apply(kReply));
    faults_.SetSilent(false);
    EXPECT_EQ(Next(), (Bytes{0xFF, 0x09, 0xF7, 0x80}));
}

TEST_F(FaultsTest, SilentRepliesDoNotUseOtherFaultsUp) {
    faults_.SetBadChecksums(1);
    faults_.SetSilent(true);
    EXPECT_FALSE(faults_.Apply(kReply));
    faults_.SetSilent(false);
    EXPECT_EQ(Next(), kWrong);
}

TEST_F(FaultsTest, DripHoldsUntilItIsOff) {
    faults_.SetDrip(milliseconds(7));
    EXPECT_EQ(faults_.Apply(kReply)->byteGap, milliseconds(7));
    EXPECT_EQ(faults_.Apply(kReply)->byteGap, milliseconds(7));
    faults_.SetDrip(milliseconds(0));
    EXPECT_EQ(faults_.Apply(kReply)->byteGap, milliseconds(0));
}

TEST_F(FaultsTest, CombineWithinOneReply) {
    faults_.SetDouble(1);
    faults_.SetBadChecksums(1);
    faults_.AddStray({0x88});
    faults_.SetLate(milliseconds(5), 1);
    const auto outgoing = faults_.Apply(kReply);
    ASSERT_TRUE(outgoing);
    EXPECT_EQ(outgoing->bytes, (Bytes{0x88, 0x09, 0xF7, 0x81, 0x09, 0xF7, 0x81}));
    EXPECT_EQ(outgoing->delay, milliseconds(5));
}

}  // namespace
}  // namespace zelvar::sim
