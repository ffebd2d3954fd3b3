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

TEST_F(FaultyReply, ABrokenReplyToACommandGivesOneBoxAndEndsThePolling) {
    StartAndOpen();
    unit->Do("bad-checksum 1");
    program->Click("cmdReset");
    ExpectOneBoxAndRecovery();
    // The failed exchange leaves its line without a reply, the next one stands below it.
    const std::string log = program->TextOf("txtMsgLog");
    EXPECT_EQ(log.substr(0, log.find('\n')), ">> 2A 81 80 D5" + std::string(15, ' '));
}

TEST_F(FaultyReply, AMissingReplyToAPollGivesOneBoxAndEndsThePolling) {
    StartAndPoll();
    unit->Do("silent on");
    ExpectOneBoxAndRecovery();
    EXPECT_EQ(program->TextOf("lblBarStatus"), "System Status = Stop");
}

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
                                           Fault{"Late", "late 300 1"},
                                           Fault{"ByteByByte", "drip 20"}),
                         [](const auto& fault) { return fault.param.name; });

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

}  // namespace

}  // namespace zelvar::e2e
