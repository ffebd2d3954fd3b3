// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr char kLost[] = "Connection to port 1 lost";
constexpr char kDisconnected[] = "System Status = Disconnected";

/// The other end of the line goes away, as when an adapter is pulled.
class Vanishing : public Journey {
  protected:
    /// The program has noticed, counts the port as closed and rests.
    void ExpectLost() {
        EXPECT_TRUE(program->Shows("lblBarDevice", kLost));
        EXPECT_EQ(program->TextOf("lblBarStatus"), kDisconnected);
        EXPECT_EQ(program->TextOf("lblTestSystemStatus"), kDisconnected);
        EXPECT_TRUE(Rests());
        EXPECT_EQ(program->Box(), BoxText());
    }

    void ExpectBoxes(std::size_t count) { EXPECT_EQ(program->BoxesShown().size(), count); }

    /// With the device back, the program works again.
    void ExpectReturn() {
        program->Click("cmdRefresh");
        ASSERT_EQ(program->ItemsOf("cboPort"), "1");
        program->Choose("cboPort", "1");
        EXPECT_EQ(program->TextOf("lblBarDevice"), "Port 1: " + unit->Device() + ", 19k2");
        RequestStatus();
        EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtVDstatus(24)"), "Fault");
        EXPECT_EQ(program->ItemsOf("cboJS"), "All| 0| 1| 3| 9| 15");
        EXPECT_TRUE(Polls());
    }
};

TEST_F(Vanishing, WhilePollingEndsThePolling) {
    StartAndPoll();
    unit->Do("hang-up");
    EXPECT_TRUE(program->Shows("lblBarDevice", kLost));
    // Whether an exchange was just in progress is chance: then it has its box.
    if (program->Box() != BoxText()) {
        EXPECT_EQ(program->Box(), NoResponseBox());
        program->Answer("OK");
    }
    ExpectLost();
    EXPECT_LE(program->BoxesShown().size(), 1U);
    unit->Do("reconnect");
    ExpectReturn();
}

TEST_F(Vanishing, DuringAPollGivesItsBoxAtOnce) {
    StartAndPoll();
    unit->Do("late 60000");
    const int polls = unit->Count("command.poll");
    ASSERT_TRUE(Until([&] { return unit->Count("command.poll") > polls; }));
    const Instant start = Now();
    unit->Do("hang-up");
    EXPECT_EQ(program->AwaitBox(), NoResponseBox());
    EXPECT_LT(Since(start), Milliseconds(1500)) << "it must not wait for the reply any longer";
    program->Answer("OK");
    ExpectLost();
    ExpectBoxes(1);
    unit->Do("late 0");
    unit->Do("reconnect");
    ExpectReturn();
    ExpectBoxes(1);
}

TEST_F(Vanishing, WhileIdleShowsNoBox) {
    StartAndOpen();
    unit->Do("hang-up");
    ExpectLost();
    ExpectBoxes(0);
    unit->Do("reconnect");
    ExpectReturn();
    ExpectBoxes(0);
}

TEST_F(Vanishing, WhileABoxIsOpenShowsNoFurtherBox) {
    StartAndPoll();
    unit->Do("bad-checksum 1");
    ASSERT_EQ(program->AwaitBox(), NoResponseBox());
    unit->Do("hang-up");
    EXPECT_TRUE(program->Shows("lblBarDevice", kLost));
    program->Answer("OK");
    ExpectLost();
    ExpectBoxes(1);
    unit->Do("reconnect");
    ExpectReturn();
}

TEST_F(Vanishing, InTheMiddleOfAStatusRequestShowsOneBox) {
    StartAndOpen();
    constexpr int kAnswered = 20;
    unit->Do("silent-after " + std::to_string(kAnswered));
    program->Click("cmdStatus");
    ASSERT_TRUE(Until([&] { return Frames() > kAnswered; }));
    unit->Do("hang-up");
    EXPECT_EQ(program->AwaitBox(), NoResponseBox());
    program->Answer("OK");
    ExpectLost();
    ExpectBoxes(1);
    EXPECT_EQ(Frames(), kAnswered + 1);
    unit->Do("silent off");
    unit->Do("reconnect");
    ExpectReturn();
    ExpectBoxes(1);
}

TEST_F(Vanishing, OverAndOverLeavesTheProgramWorking) {
    StartAndOpen();
    constexpr int kTimes = 5;
    for (int i = 0; i < kTimes; ++i) {
        unit->Do("hang-up");
        EXPECT_TRUE(program->Shows("lblBarDevice", kLost));
        unit->Do("reconnect");
        program->Click("cmdRefresh");
        program->Choose("cboPort", "1");
        EXPECT_EQ(program->TextOf("lblBarDevice"), "Port 1: " + unit->Device() + ", 19k2");
    }
    ExpectRecovery();
    ExpectBoxes(0);
}

TEST_F(Vanishing, WithTheOtherProgramKilledIsNoticedToo) {
    StartAndPoll();
    unit->Process().Kill();
    EXPECT_TRUE(program->Shows("lblBarDevice", kLost));
    if (program->Box() != BoxText()) {
        program->Answer("OK");
    }
    ExpectLost();
    EXPECT_LE(program->BoxesShown().size(), 1U);
    unit.emplace(folder);
    ExpectReturn();
}

}  // namespace

}  // namespace zelvar::e2e
