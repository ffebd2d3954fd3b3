// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

constexpr Command kResetFault{2, {1, 0}};

Bytes Joined(std::initializer_list<Bytes> parts) {
    Bytes whole;
    for (const Bytes& part : parts) {
        whole.insert(whole.end(), part.begin(), part.end());
    }
    return whole;
}

struct ReplyRow {
    const char* name;
    Bytes arriving;
    bool ok;
    const char* logged;
    /// The frame that counts.
    Bytes frame;
};

class ReceivedReply : public LinkFixture, public ::testing::WithParamInterface<ReplyRow> {};

TEST_P(ReceivedReply, IsTakenAsTheFrameRulesSay) {
    const ReplyRow& row = GetParam();
    port.replies = {row.arriving};
    const std::optional<Reply> reply = link.Transact(kResetFault);
    EXPECT_EQ(reply.has_value(), row.ok);
    EXPECT_EQ(view.log, std::string(">> 0A 81 80 F5               ") + row.logged + "\r\n");
    EXPECT_EQ(messageBox.shown.size(), row.ok ? 0U : 1U);
    if (reply) {
        EXPECT_EQ(Bytes(reply->Bytes().begin(), reply->Bytes().end()), row.frame);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Replies, ReceivedReply,
    ::testing::Values(
        ReplyRow{"WithoutData", {0x08, 0xF8}, true, "  << 08 F8", {0x08, 0xF8}},
        ReplyRow{"WithTwoBytes",
                 {0x2A, 0xB3, 0x85, 0x9E},
                 true,
                 "  << 2A B3 85 9E",
                 {0x2A, 0xB3, 0x85, 0x9E}},
        ReplyRow{"WithSevenBytes",
                 {0x0F, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87, 0xD5},
                 true,
                 "  << 0F 81 82 83 84 85 86 87 D5",
                 {0x0F, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87, 0xD5}},
        ReplyRow{"AfterAHeaderOfALongerFrame",
                 {0x0F, 0x81, 0x82, 0x83, 0x09, 0x85, 0xF2},
                 true,
                 "  << 09 85 F2",
                 {0x09, 0x85, 0xF2}},
        ReplyRow{
            "AfterStrayBytes", {0x80, 0xFF, 0x93, 0x08, 0xF8}, true, "  << 08 F8", {0x08, 0xF8}},
        ReplyRow{"AfterAnotherHeader",
                 {0x0A, 0x09, 0x85, 0xF2},
                 true,
                 "  << 09 85 F2",
                 {0x09, 0x85, 0xF2}},
        ReplyRow{"WithMoreBehindIt", {0x08, 0xF8, 0x28, 0xD8}, true, "  << 08 F8", {0x08, 0xF8}},
        ReplyRow{"ChecksumOneTooLarge", {0x08, 0xF9}, false, "", {}},
        ReplyRow{"ChecksumOneTooSmall", {0x08, 0xF7}, false, "", {}},
        ReplyRow{"DataBitBroken", {0x2A, 0xB3, 0x84, 0x9E}, false, "", {}},
        ReplyRow{"WithoutChecksum", {0x0A, 0xB3, 0x85}, false, "", {}},
        ReplyRow{"HeaderAlone", {0x08}, false, "", {}},
        // As many as the longest frame has, and adding up to 0 like a good one.
        ReplyRow{"StrayBytesAlone", Bytes(12, 0x80), false, "", {}},
        ReplyRow{"Nothing", {}, false, "", {}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(LinkFixture, AReplyAfterALongerOneLeavesNothingOfItBehind) {
    port.replies = {WireFrame({1, 2, 3, 4, 5, 6, 7}), WireFrame({9})};
    link.Transact(kEmptyTransaction);
    const std::optional<Reply> reply = link.Transact(kEmptyTransaction);
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->Count(), 1);
    EXPECT_EQ((*reply)[1], 9);
    EXPECT_EQ((*reply)[2], 0);
}

struct DelayRow {
    const char* name;
    double start;
    double delay;
    bool ok;
};

class ReplyTiming : public LinkFixture, public ::testing::WithParamInterface<DelayRow> {};

TEST_P(ReplyTiming, DecidesWhetherTheReplyCounts) {
    const DelayRow& row = GetParam();
    clock.now = row.start;
    port.replyDelay = row.delay;
    EXPECT_EQ(link.Transact(kResetFault).has_value(), row.ok);
}

INSTANTIATE_TEST_SUITE_P(Delays, ReplyTiming,
                         ::testing::Values(DelayRow{"AtOnce", 36000, 0, true},
                                           DelayRow{"Late", 36000, 1.999, true},
                                           DelayRow{"ExactlyAtTheLimit", 36000, 2.0, true},
                                           DelayRow{"JustAfterTheLimit", 36000, 2.0001, false},
                                           DelayRow{"JustBeforeMidnight", 86399, 0.9, true},
                                           DelayRow{"AcrossMidnight", 86399, 1.1, false},
                                           DelayRow{"JustAfterMidnight", 0, 2.0, true}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(LinkFixture, TheLastByteDecidesWhetherTheReplyIsInTime) {
    port.replies = {Bytes{}, Bytes{}};
    const Bytes reply = WireFrame({1});
    // The flush would take what waits already, so all of it comes later.
    port.Arrive({reply[0], reply[1]}, 1.0);
    port.Arrive({reply[2]}, 2.0);
    EXPECT_TRUE(link.Transact(kResetFault));
    port.Arrive({reply[0], reply[1]}, 1.0);
    port.Arrive({reply[2]}, 2.01);
    EXPECT_FALSE(link.Transact(kResetFault));
}

TEST_F(LinkFixture, AHeaderDuringTheWaitDoesNotLengthenIt) {
    port.replies = {Bytes{}};
    port.Arrive({0x08}, 1.9);
    port.Arrive({0x08, 0xF8}, 2.1);
    EXPECT_FALSE(link.Transact(kResetFault));
}

TEST_F(LinkFixture, TheWaitTakesTwoSecondsAndNotMuchMore) {
    port.replies = {Bytes{}};
    link.Transact(kResetFault);
    EXPECT_GE(clock.now, 36002.0);
    EXPECT_LE(clock.now, 36002.1);
}

TEST_F(LinkFixture, MidnightEndsTheWaitEarly) {
    clock.now = 86399.5;
    port.replies = {Bytes{}};
    EXPECT_FALSE(link.Transact(kResetFault));
    EXPECT_LT(clock.now, 0.1);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(LinkFixture, TheWaitSleepsInsteadOfSpinning) {
    class CountingPort : public ScriptedPort {
      public:
        using ScriptedPort::ScriptedPort;
        void SendAndWait(std::span<const std::uint8_t> bytes, double seconds) override {
            ++waits;
            ScriptedPort::SendAndWait(bytes, seconds);
        }
        int waits = 0;
    };
    CountingPort counting(clock);
    counting.open = true;
    counting.replies = {Bytes{}};
    Link other(counting, timer, clock, messageBox, view);
    other.Transact(kEmptyTransaction);
    EXPECT_LE(counting.waits, 2);
}

struct StateRow {
    const char* name;
    bool stop;
    int header;
    SystemState state;
};

class ReplyState : public LinkFixture, public ::testing::WithParamInterface<StateRow> {};

TEST_P(ReplyState, SetsTheStatusLine) {
    view.stopTicked = GetParam().stop;
    port.replies = {WireFrame({}, GetParam().header)};
    EXPECT_TRUE(link.Transact(kEmptyTransaction));
    EXPECT_EQ(view.states, std::vector<SystemState>{GetParam().state});
}

INSTANTIATE_TEST_SUITE_P(
    States, ReplyState,
    ::testing::Values(StateRow{"Run", false, 0, SystemState::Run},
                      StateRow{"RunWithToggle", false, 0x40, SystemState::Run},
                      StateRow{"RunWithHold", false, 0x10, SystemState::Run},
                      StateRow{"Fault", false, 0x20, SystemState::Fault},
                      StateRow{"FaultAndHold", false, 0x30, SystemState::Fault},
                      StateRow{"Stop", true, 0, SystemState::Stop},
                      StateRow{"StopHidesFault", true, 0x20, SystemState::Stop}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(LinkFixture, AFailedExchangeLeavesTheStatusLineAlone) {
    port.replies = {Bytes{}, Bytes{0x28, 0xD9}};
    link.Transact(kResetFault);
    link.Transact(kResetFault);
    EXPECT_TRUE(view.states.empty());
}

TEST_F(LinkFixture, AFailureIsToldInTheCallersWords) {
    port.replies = {Bytes{}, Bytes{}};
    link.Transact(kResetFault, "The booster does not answer");
    link.Transact(kResetFault, "");
    EXPECT_EQ(messageBox.shown, (std::vector{Exclamation("The booster does not answer"),
                                             Exclamation("No response from Zelvar")}));
}

TEST_F(LinkFixture, PollingIsOffDuringTheExchangeAndOnAfterAReply) {
    timer.enabled = true;
    bool enabledWhileSending = true;
    port.responder = [&](const SentFrame&) {
        enabledWhileSending = timer.enabled;
        return EmptyReply();
    };
    EXPECT_TRUE(link.Transact(kResetFault));
    EXPECT_FALSE(enabledWhileSending);
    EXPECT_TRUE(timer.enabled);
}

TEST_F(LinkFixture, AReplySwitchesPollingOnEvenIfItWasOff) {
    EXPECT_TRUE(link.Transact(kResetFault));
    EXPECT_TRUE(timer.enabled);
}

TEST_F(LinkFixture, ReplyHandlersRunBeforePollingIsOnAgain) {
    bool enabledInHandler = true;
    link.Handlers().SetHandler(ReplyKind::Overcurrent,
                               [&](const Reply&) { enabledInHandler = timer.enabled; });
    port.replies = {WireFrame({0x33, 5})};
    link.Transact(kEmptyTransaction);
    EXPECT_FALSE(enabledInHandler);
    EXPECT_TRUE(timer.enabled);
}

TEST_F(LinkFixture, AFailureLeavesPollingOffAlsoWhileItsBoxIsOpen) {
    timer.enabled = true;
    bool enabledWhileShown = true;
    messageBox.whileShown = [&] { enabledWhileShown = timer.enabled; };
    port.replies = {Bytes{}};
    link.Transact(kEmptyTransaction);
    EXPECT_FALSE(enabledWhileShown);
    EXPECT_FALSE(timer.enabled);
}

TEST_F(LinkFixture, TwoRepliesInARowCountAsOne) {
    port.replies = {Joined({WireFrame({0x33, 5}), WireFrame({0x33, 6})})};
    std::vector<int> blocks;
    link.Handlers().SetHandler(ReplyKind::Overcurrent,
                               [&](const Reply& reply) { blocks.push_back(reply[2]); });
    link.Transact(kEmptyTransaction);
    link.Transact(kEmptyTransaction);
    EXPECT_EQ(blocks, std::vector<int>{5});
}

}  // namespace
}  // namespace zelvar::testing
