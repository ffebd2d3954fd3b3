// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csignal>

#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

using Operation = Journey;

/// What the log shows of a poll that brought the alarm of block 133: the frame with one or the
/// other alternating bit, 21 spaces for the places that it does not use, and the reply.
std::vector<std::string> PollWithAlarm() {
    const std::string rest = std::string(21, ' ') + "  << 0A B3 85 BE\n";
    return {">> 28 D8" + rest, ">> 68 98" + rest};
}

TEST_F(Operation, TheStatusLineFollowsTheUnitWhilePolling) {
    StartAndPoll();
    EXPECT_EQ(unit->Value("stop"), "1");
    EXPECT_EQ(program->ColourOf("lblTestSystemStatus", "WindowText"), "#000000");

    program->Click("Check_Stop");
    EXPECT_TRUE(program->Shows("lblTestSystemStatus", "System Status = Run"));
    EXPECT_EQ(program->TextOf("lblBarStatus"), "System Status = Run");
    EXPECT_EQ(program->ColourOf("lblTestSystemStatus", "WindowText"), "#0000ff");
    EXPECT_EQ(unit->Value("stop"), "0");

    unit->Do("fault on");
    EXPECT_TRUE(program->Shows("lblTestSystemStatus", "System Status = Fault"));
    EXPECT_EQ(program->ColourOf("lblTestSystemStatus", "WindowText"), "#ff0000");
    unit->Do("fault off");
    EXPECT_TRUE(program->Shows("lblTestSystemStatus", "System Status = Run"));

    unit->Do("fault on");
    program->Click("Check_Stop");
    EXPECT_TRUE(program->Shows("lblTestSystemStatus", "System Status = Stop"))
        << "Stop comes before Fault";
}

TEST_F(Operation, AnOvercurrentBringsTheAlarmLogIntoView) {
    StartAndPoll();
    unit->Do("overcurrent 133");
    ASSERT_TRUE(program->Says({"window", "dlgAlarmLog"}, "visible"));
    EXPECT_EQ(program->TitleOf("dlgAlarmLog"), "ZelvarConfig Alarm Log");
    unit->Do("release 133");
    unit->Do("overcurrent 0");
    EXPECT_TRUE(program->Shows("txtAlarmLog",
                               "Overcurrent block 133 detected .............\n"
                               "Overcurrent block 133 .............. released\n"
                               "Overcurrent block 0 detected .............\n"));
    program->Close("dlgAlarmLog");
    EXPECT_TRUE(program->Says({"window", "dlgAlarmLog"}, "absent"));
    unit->Do("release 0");
    EXPECT_TRUE(program->Says({"window", "dlgAlarmLog"}, "visible"));
    EXPECT_EQ(program->TextOf("txtAlarmLog"), "Overcurrent block 0 .............. released\n");
}

TEST_F(Operation, TheMessageLogShowsEveryExchangeButQuietPolls) {
    StartAndOpen();
    program->DoubleClick("lblCom");
    ASSERT_TRUE(program->Says({"window", "dlgMsgLog"}, "visible"));
    EXPECT_EQ(program->TitleOf("dlgMsgLog"), "Message Log");
    program->Click("cmdReset");
    const std::string reset = ">> 2A 81 80 D5" + std::string(15, ' ') + "  << 08 F8\n";
    EXPECT_TRUE(program->Shows("txtMsgLog", reset));
    EXPECT_TRUE(Polls());
    EXPECT_EQ(program->TextOf("txtMsgLog"), reset);

    unit->Do("overcurrent 133");
    ASSERT_TRUE(program->Says({"window", "dlgAlarmLog"}, "visible"));
    const std::string text = program->TextOf("txtMsgLog");
    ASSERT_TRUE(text.starts_with(reset));
    const std::string added = text.substr(reset.size());
    const std::vector<std::string> allowed = PollWithAlarm();
    EXPECT_NE(std::find(allowed.begin(), allowed.end(), added), allowed.end()) << added;

    program->Click("dlgMsgLog/cmdClear");
    EXPECT_EQ(program->TextOf("txtMsgLog"), "");
    EXPECT_NE(program->TextOf("txtAlarmLog"), "");
}

TEST_F(Operation, TheLogOfAStatusRequestIsWhatWentOverTheLine) {
    StartAndOpen({"--layout", "none"});
    unit->Do("trace on");
    RequestStatus();
    std::string expected;
    std::string sent;
    for (const std::string& frame : unit->Trace()) {
        const std::string bytes = frame.substr(2);
        constexpr std::size_t kPollText = 6;  // header and checksum
        if (frame.starts_with("rx")) {
            sent = bytes;
        } else if (sent.size() > kPollText) {
            constexpr std::size_t kFullText = 27;  // header, seven data bytes, checksum
            const std::string spaces(kFullText - sent.size(), ' ');
            expected.append(">>").append(sent).append(spaces);
            expected.append("  <<").append(bytes).append("\n");
        }
    }
    EXPECT_EQ(program->TextOf("txtMsgLog"), expected);
}

TEST_F(Operation, ABaudChangeGoesOnPolling) {
    StartAndPoll();
    EXPECT_EQ(unit->Value("line-baud"), "19200");
    program->DoubleClick("lblCom");
    program->Click("optBaud(1)");
    EXPECT_TRUE(program->Shows("lblBarDevice", "Port 1: " + unit->Device() + ", 38k4"));
    EXPECT_EQ(unit->Value("line-baud"), "38400");
    EXPECT_TRUE(Polls());
    EXPECT_EQ(program->TextOf("lblBarStatus"), "System Status = Stop");
    program->Click("optBaud(0)");
    EXPECT_TRUE(program->Shows("lblBarDevice", "Port 1: " + unit->Device() + ", 19k2"));
    EXPECT_EQ(unit->Value("line-baud"), "19200");
    EXPECT_TRUE(Polls());
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

/// SIGINT and SIGHUP are handled alike.
TEST_F(Operation, ASignalEndsTheProgramWhileABoxIsOpenOverTheStatusWindow) {
    StartAndPoll();
    RequestStatus();
    unit->Do("silent on");
    EXPECT_EQ(program->AwaitBox(), NoResponseBox());
    kill(program->Process().Id(), SIGTERM);
    EXPECT_EQ(program->Process().WaitForExit(), 0) << program->Process().Describe();
}

}  // namespace

}  // namespace zelvar::e2e
