// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

constexpr Command kResetFault{2, {1, 0}};

struct SendRow {
    const char* name;
    Command command;
    bool stop;
    bool toggle;
    Bytes wire;
    const char* logged;
};

class TransactSend : public LinkFixture, public ::testing::WithParamInterface<SendRow> {};

TEST_P(TransactSend, PutsTheFrameOnTheWireAndInTheLog) {
    const SendRow& row = GetParam();
    if (row.toggle) {
        ASSERT_TRUE(link.Transact(kEmptyTransaction));
        port.ForgetSent();
        view.log.clear();
    }
    view.stopTicked = row.stop;
    // A reply with a data byte, so that polls are logged, too.
    port.replies = {WireFrame({5})};
    EXPECT_TRUE(link.Transact(row.command));
    EXPECT_EQ(port.written, row.wire);
    EXPECT_EQ(view.log, std::string(row.logged) + "  << 09 85 F2\r\n");
}

// The wire bytes are written out by hand; the spaces stand for the places of unused data bytes.
INSTANTIATE_TEST_SUITE_P(
    Frames, TransactSend,
    ::testing::Values(
        SendRow{"PollWithStop", {}, true, false, {0x28, 0xD8}, ">> 28 D8                     "},
        SendRow{"PollWithoutStop", {}, false, false, {0x08, 0xF8}, ">> 08 F8                     "},
        SendRow{
            "PollWithStopAndToggle", {}, true, true, {0x68, 0x98}, ">> 68 98                     "},
        SendRow{"ResetWithToggle",
                kResetFault,
                false,
                true,
                {0x4A, 0x81, 0x80, 0xB5},
                ">> 4A 81 80 B5               "},
        SendRow{"ResetWithoutToggle",
                kResetFault,
                false,
                false,
                {0x0A, 0x81, 0x80, 0xF5},
                ">> 0A 81 80 F5               "},
        // 9 + 247 is 256: the sum stays there, and the checksum of 0 is raised to 128.
        SendRow{"SumOfExactly256",
                {1, {119}},
                false,
                false,
                {0x09, 0xF7, 0x80},
                ">> 09 F7 80                  "},
        SendRow{"SumOf257",
                {1, {120}},
                false,
                false,
                {0x09, 0xF8, 0xFF},
                ">> 09 F8 FF                  "},
        SendRow{"SumOf255",
                {1, {118}},
                false,
                false,
                {0x09, 0xF6, 0x81},
                ">> 09 F6 81                  "},
        SendRow{"OneByte",
                {1, {127}},
                false,
                false,
                {0x09, 0xFF, 0xF8},
                ">> 09 FF F8                  "},
        SendRow{"ThreeBytes",
                {3, {1, 11, 32}},
                false,
                false,
                {0x0B, 0x81, 0x8B, 0xA0, 0xC9},
                ">> 0B 81 8B A0 C9            "},
        SendRow{"FourBytes",
                {4, {0, 32, 5, 64}},
                false,
                false,
                {0x0C, 0x80, 0xA0, 0x85, 0xC0, 0x8F},
                ">> 0C 80 A0 85 C0 8F         "},
        SendRow{"FiveBytes",
                {5, {1, 2, 3, 4, 5}},
                false,
                false,
                {0x0D, 0x81, 0x82, 0x83, 0x84, 0x85, 0xE4},
                ">> 0D 81 82 83 84 85 E4      "},
        SendRow{"SixBytes",
                {6, {1, 2, 3, 4, 5, 6}},
                false,
                false,
                {0x0E, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0xDD},
                ">> 0E 81 82 83 84 85 86 DD   "},
        SendRow{"SevenBytes",
                {7, {1, 2, 3, 4, 5, 6, 7}},
                false,
                false,
                {0x0F, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87, 0xD5},
                ">> 0F 81 82 83 84 85 86 87 D5"},
        SendRow{"ValuesBeyondTheCountStayHome",
                {1, {1, 2, 3, 4, 5, 6, 7}},
                false,
                false,
                {0x09, 0x81, 0xF6},
                ">> 09 81 F6                  "}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(LinkFixture, EveryFrameAddsUpToAMultipleOf128) {
    for (int value = 0; value < 128; ++value) {
        link.Transact({3, {static_cast<std::uint8_t>(value), 127, 1}});
    }
    for (const SentFrame& frame : port.sent) {
        int sum = frame.wire.front();
        for (std::size_t i = 1; i < frame.wire.size(); ++i) {
            EXPECT_GE(frame.wire[i], 128);
            sum += frame.wire[i] & 127;
        }
        EXPECT_EQ(sum % 128, 0);
    }
    EXPECT_EQ(port.sent.size(), 128U);
}

TEST_F(LinkFixture, ACommandStandsInTheLogBeforeItsLineIsComplete) {
    std::string logWhileShown;
    messageBox.whileShown = [&] { logWhileShown = view.log; };
    port.replies = {Bytes{}};
    link.Transact(kResetFault);
    EXPECT_EQ(logWhileShown, ">> 0A 81 80 F5               ");
}

TEST_F(LinkFixture, ACommandWithoutReplyKeepsTheBlanksOfItsUnusedPlaces) {
    port.replies = {Bytes{}};
    EXPECT_FALSE(link.Transact(kResetFault));
    EXPECT_EQ(view.log, ">> 0A 81 80 F5               \r\n");
}

TEST_F(LinkFixture, APollAnsweredWithoutDataIsNotLogged) {
    EXPECT_TRUE(link.Transact(kEmptyTransaction));
    EXPECT_EQ(view.log, "");
}

TEST_F(LinkFixture, APollWithoutReplyLeavesALineBreakAlone) {
    port.replies = {Bytes{}};
    EXPECT_FALSE(link.Transact(kEmptyTransaction));
    EXPECT_EQ(view.log, "\r\n");
}

TEST_F(LinkFixture, ACommandAnsweredWithoutDataIsLogged) {
    EXPECT_TRUE(link.Transact(kEmptyTransaction));
    port.replies = {WireFrame({}, 0x20)};
    EXPECT_TRUE(link.Transact(kResetFault));
    EXPECT_EQ(view.log, ">> 4A 81 80 B5                 << 28 D8\r\n");
}

TEST_F(LinkFixture, TheToggleFlipsWithEveryFrameWhateverBecomesOfIt) {
    port.replies = {EmptyReply(), Bytes{}, Bytes{0x08, 0x80}, EmptyReply()};
    for (int i = 0; i < 4; ++i) {
        link.Transact(kEmptyTransaction);
    }
    std::vector<int> headers;
    for (const SentFrame& frame : port.sent) {
        headers.push_back(frame.Header());
    }
    EXPECT_EQ(headers, (std::vector<int>{0x08, 0x48, 0x08, 0x48}));
}

TEST_F(LinkFixture, TheToggleSurvivesReopeningThePort) {
    link.Transact(kEmptyTransaction);
    port.Close();
    ASSERT_TRUE(port.Open(1, 19200));
    link.Transact(kEmptyTransaction);
    EXPECT_EQ(port.sent.back().Header(), 0x48);
}

TEST_F(LinkFixture, WhatIsLeftFromEarlierIsThrownAwayBeforeSending) {
    port.Arrive(WireFrame({1, 2, 3}, 0x20));
    const std::optional<Reply> reply = link.Transact(kResetFault);
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->Count(), 0);
    EXPECT_EQ(view.states, std::vector<SystemState>{SystemState::Run});
}

TEST_F(LinkFixture, WithThePortClosedNothingHappensBesidesPollingGoingOff) {
    port.open = false;
    timer.enabled = true;
    EXPECT_FALSE(link.Transact(kResetFault));
    EXPECT_FALSE(timer.enabled);
    EXPECT_TRUE(port.written.empty());
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_EQ(view.log, "");
}

TEST_F(LinkFixture, APayloadAbove127StopsTheFrameWithACriticalBox) {
    timer.enabled = true;
    EXPECT_FALSE(link.Transact({3, {5, 128, 6}}, "something else"));
    const ShownBox box{"Overflow", BoxIcon::Critical, BoxButtons::Ok};
    EXPECT_EQ(messageBox.shown, std::vector<ShownBox>{box});
    // What went out before stays out, and does not wait in a buffer.
    EXPECT_EQ(port.written, (Bytes{0x0B, 0x85}));
    EXPECT_EQ(view.log, "");
    EXPECT_FALSE(timer.enabled);
    EXPECT_TRUE(view.states.empty());
}

TEST_F(LinkFixture, AnOverflowDoesNotFlipTheToggle) {
    link.Transact({1, {255}});
    link.Transact(kEmptyTransaction);
    EXPECT_EQ(port.sent.back().Header(), 0x08);
}

TEST_F(LinkFixture, AnUnusedPayloadAbove127IsNoOverflow) {
    EXPECT_TRUE(link.Transact({1, {5, 255}}));
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(LinkFixture, ACountAboveSevenSpillsIntoTheHeaderAndSendsSevenBytes) {
    link.Transact({9, {1, 2, 3, 4, 5, 6, 7}});
    // 9 + 8 is 0x11.
    EXPECT_EQ(port.written, (Bytes{0x11, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87, 0xD3}));
}

TEST_F(LinkFixture, ACountTooLargeForAHeaderOverflows) {
    EXPECT_FALSE(link.Transact({248, {}}));
    EXPECT_TRUE(port.written.empty());
    EXPECT_EQ(messageBox.shown.front().text, "Overflow");
}

}  // namespace
}  // namespace zelvar::testing
