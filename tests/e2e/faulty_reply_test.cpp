// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

/// How long the program waits for a reply.
constexpr Milliseconds kReplyLimit{2000};
constexpr char kSystemVersion[] = "dlgZelvarStatus44/txtSysVer";

class FaultyReply : public Journey {
  protected:
    /// The box for the missing reply is open: it is the only one, and polling has stopped.
    void ExpectOneBoxAndRecovery() {
        EXPECT_EQ(program->AwaitBox(), NoResponseBox());
        EXPECT_TRUE(DoesNotPoll()) << "while the box is open";
        program->Answer("OK");
        EXPECT_EQ(program->Box(), BoxText());
        EXPECT_TRUE(DoesNotPoll()) << "after the box";
        unit->Do("silent off");
        ExpectRecovery();
        EXPECT_EQ(program->BoxesShown().size(), 1U);
    }
};

struct Fault {
    std::string name;
    std::string command;
};

std::ostream& operator<<(std::ostream& out, const Fault& fault) {
    return out << fault.command;
}

std::string NameOf(const ::testing::TestParamInfo<Fault>& fault) {
    return fault.param.name;
}

class BrokenReply : public FaultyReply, public ::testing::WithParamInterface<Fault> {};

TEST_P(BrokenReply, ToACommandGivesOneBoxAndEndsThePolling) {
    StartAndOpen();
    unit->Do(GetParam().command);
    program->Click("cmdReset");
    ExpectOneBoxAndRecovery();
    // The failed exchange leaves its line without a reply, the next one stands below it.
    const std::string log = program->TextOf("txtMsgLog");
    EXPECT_EQ(log.substr(0, log.find('\n')), ">> 2A 81 80 D5" + std::string(15, ' '));
}

TEST_P(BrokenReply, ToAPollGivesOneBoxAndEndsThePolling) {
    StartAndPoll();
    unit->Do(GetParam().command);
    ExpectOneBoxAndRecovery();
    EXPECT_EQ(program->TextOf("lblBarStatus"), "System Status = Stop");
}

INSTANTIATE_TEST_SUITE_P(Fault, BrokenReply,
                         ::testing::Values(Fault{"Missing", "silent on"},
                                           Fault{"WithoutChecksum", "short 1"},
                                           Fault{"WithABadChecksum", "bad-checksum 1"}),
                         &NameOf);

class OddReply : public FaultyReply, public ::testing::WithParamInterface<Fault> {};

TEST_P(OddReply, IsAccepted) {
    StartAndOpen({"--layout", "none"});
    for (int request = 0; request < 2; ++request) {
        unit->Do(GetParam().command);
        program->Click("cmdReset");
        EXPECT_TRUE(program->Shows("lblBarStatus", "System Status = Stop"));
        EXPECT_TRUE(Polls());
    }
    unit->Do("drip 0");
    RequestStatus();
    EXPECT_EQ(program->TextOf(kSystemVersion), "KB-E 1.02");
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Fault, OddReply,
                         ::testing::Values(Fault{"Doubled", "double 1"},
                                           Fault{"BehindStrayBytes", "stray 85 FF 80"},
                                           Fault{"BehindHalfAFrame", "stray 0B 85 81"},
                                           Fault{"BehindAHeader", "stray 0F"},
                                           Fault{"Late", "late 300 1"},
                                           Fault{"ByteByByte", "drip 20"}),
                         &NameOf);

TEST_F(FaultyReply, EveryReplyDoubledStillFillsTheStatusView) {
    StartAndOpen();
    unit->Do("double 100000");
    RequestStatus();
    EXPECT_EQ(program->TextOf(kSystemVersion), "KB-E 1.02");
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtVDstatus(24)"), "Fault");
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtYRver(18)"), "?");
    EXPECT_EQ(program->ItemsOf("cboJS"), "All| 0| 1| 3| 9| 15");
    EXPECT_TRUE(Polls());
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

TEST_F(FaultyReply, AReplyWithinTheLimitCounts) {
    StartAndOpen();
    constexpr Milliseconds kDelay{1500};
    unit->Do("late " + std::to_string(kDelay.count()) + " 1");
    const Instant start = Now();
    program->Click("cmdReset");
    EXPECT_TRUE(program->Shows("lblBarStatus", "System Status = Stop"));
    EXPECT_GE(Since(start), kDelay);
    EXPECT_TRUE(Polls());
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

TEST_F(FaultyReply, AReplyBeyondTheLimitIsNotTakenForTheNextOne) {
    StartAndOpen();
    constexpr Milliseconds kDelay{2500};
    unit->Do("late " + std::to_string(kDelay.count()) + " 1");
    const Instant start = Now();
    program->Click("cmdReset");
    EXPECT_EQ(program->AwaitBox(), NoResponseBox());
    EXPECT_GE(Since(start), kReplyLimit);
    EXPECT_EQ(program->TextOf("lblBarStatus"), "System Status = Disconnected");
    program->Answer("OK");
    EXPECT_TRUE(DoesNotPoll());
    // By then the late reply lies in the program's input.
    Until([&] { return Since(start) > kDelay + Milliseconds(200); });
    RequestStatus();
    EXPECT_EQ(program->TextOf(kSystemVersion), "KB-E 1.02");
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtProtVer"), "3.11 B");
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtVDstatus(24)"), "Fault");
    EXPECT_TRUE(Polls());
    EXPECT_EQ(program->BoxesShown().size(), 1U);
}

TEST_F(FaultyReply, AModuleRequestWithoutReplyLeavesOnlyItsLineEmpty) {
    StartAndOpen();
    // The third reply is that of the first traction module.
    unit->Do("silent-after 2");
    program->Click("cmdStatus");
    ASSERT_EQ(program->AwaitBox(), NoResponseBox());
    unit->Do("silent off");
    program->Answer("OK");
    ASSERT_TRUE(program->Says({"window", "dlgZelvarStatus44"}, "visible"));
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtVDstatus(0)"), "--");
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtVDstatus(1)"), "Idle");
    EXPECT_EQ(program->TextOf("cboVD"), " 1");
    EXPECT_EQ(program->BoxesShown().size(), 1U);
}

TEST_F(FaultyReply, AStatusRequestWithoutFirstReplyShowsNoView) {
    StartAndOpen();
    unit->Do("silent-after 0");
    program->Click("cmdStatus");
    ASSERT_EQ(program->AwaitBox(), NoResponseBox());
    program->Answer("OK");
    EXPECT_NE(program->Window("dlgZelvarStatus44"), "visible");
    EXPECT_TRUE(DoesNotPoll());
    EXPECT_EQ(program->BoxesShown().size(), 1U);
}

}  // namespace

}  // namespace zelvar::e2e
