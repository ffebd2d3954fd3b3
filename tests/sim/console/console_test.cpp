// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "sim/console/console_fixture.h"
#include "sim/unit/reports.h"

namespace zelvar::sim {
namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

using ConsoleTest = ConsoleFixture<UnitFixture>;

struct LineCase {
    const char* name;
    const char* line;
    const char* answer;
};

class ConsoleLine : public ConsoleTest, public testing::WithParamInterface<LineCase> {};

TEST_P(ConsoleLine, IsAnsweredWith) {
    EXPECT_EQ(Answer(GetParam().line), GetParam().answer);
}

/// What single arguments accept and reject is tested beside this.
INSTANTIATE_TEST_SUITE_P(
    Rows, ConsoleLine,
    testing::Values(
        LineCase{"Empty", "", ""}, LineCase{"OnlySpaces", "  \t ", ""},
        LineCase{"SpacesAround", "  release   0x10 \r", "ok"},
        LineCase{"Unknown", "explode 5", "error unknown command explode; \"help\" lists them"},
        LineCase{"Misspelt", "fualt on", "error unknown command fualt; did you mean fault?"},
        LineCase{"CaseCounts", "Fault on", "error unknown command Fault; did you mean fault?"},
        LineCase{"TooFew", "speed 1 2", "error usage: speed B S forward|reverse"},
        LineCase{"TooMany", "reboot now", "error usage: reboot"},
        LineCase{"Number", "speed 1 64 forward", "error S: expected 0..63, found 64"},
        LineCase{"Choice", "speed 1 2 up", "error expected forward or reverse, found up"},
        LineCase{"NeitherForm", "module 5 gone", "error expected absent or status, found gone"},
        LineCase{"NoForm", "module 5",
                 "error usage: module ADDRESS absent or module ADDRESS status BYTE"},
        LineCase{"TheFirstForm", "module 5 absent 3", "error usage: module ADDRESS absent"},
        LineCase{"TheSecondForm", "module 5 status", "error usage: module ADDRESS status BYTE"},
        LineCase{"NumberOfAForm", "module 5 status 128", "error BYTE: expected 0..127, found 128"},
        LineCase{"NumberOfBothForms", "module 128 absent",
                 "error ADDRESS: expected 0..127, found 128"},
        LineCase{"PresentModule", "clock 4 1", "ok"},
        LineCase{"ClockOfAnAbsentModule", "clock 63 1", "ok, but there is no module at address 31"},
        LineCase{"RoleOfAnAbsentModule", "ms 63 1", "ok, but there is no module at address 31"},
        LineCase{"MutesAnAbsentModule", "mute-module 95 on",
                 "ok, but there is no module at address 95"},
        LineCase{"TakesAnAbsentModuleAway", "module 31 absent",
                 "ok, but there is no module at address 31"}),
    [](const auto& row) { return row.param.name; });

TEST_F(ConsoleTest, AWrongStrayLineAddsNothing) {
    Answer("stray 01 XX");
    EXPECT_EQ(faults_.Apply({0x08, 0xF8})->bytes.size(), 2U);
}

TEST_F(ConsoleTest, OvercurrentIsReportedAndListedUntilItsRelease) {
    Answer("overcurrent 133");
    EXPECT_EQ(Poll(), OvercurrentReport(133, true));
    EXPECT_EQ(Listed("overcurrent"), "133");
    EXPECT_EQ(Listed("fault"), "0") << "that is a line of its own";
    Answer("release 133");
    EXPECT_EQ(Poll(), OvercurrentReport(133, false));
}

TEST_F(ConsoleTest, SpeedIsReportedOnceAlsoWhenItDoesNotChange) {
    Answer("speed 5 12 forward");
    EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(5, 12, true)}));
    Answer("speed 5 12 forward");
    EXPECT_EQ(PollAll(), (std::vector<Payload>{BlockSpeedReport(5, 12, true)}));
    EXPECT_EQ(Listed("block.5"), "speed:12,direction:forward,target:12,light:0");
}

TEST_F(ConsoleTest, FeedbackReportsChangesOnly) {
    Answer("feedback 389 0");
    EXPECT_EQ(PollAll(), std::vector<Payload>{});
    Answer("feedback 389 1");
    Answer("feedback 389 1");
    Answer("feedback 389 0");
    EXPECT_EQ(PollAll(),
              (std::vector<Payload>{FeedbackReport(389, true), FeedbackReport(389, false)}));
}

TEST_F(ConsoleTest, FaultAndHoldShowInTheHeader) {
    Answer("fault on");
    Answer("hold on");
    EXPECT_EQ(Send({})->headerBits, 0x30);
    Answer("fault off");
    EXPECT_EQ(Send({})->headerBits, 0x10);
}

TEST_F(ConsoleTest, ModulesGoAndCome) {
    Answer("module 32 absent");
    EXPECT_EQ(Ask({1, 11, 32}), (Payload{1, 11, 32, 0, 0, 0}));
    Answer("module 32 status 0x19");
    EXPECT_EQ(Ask({1, 11, 32}), (Payload{1, 11, 32, 0x19, 8, 19}));
}

TEST_F(ConsoleTest, MasterSlaveHoldsOverAReboot) {
    Answer("answer-delay 0");
    Answer("ms 51 1");
    EXPECT_EQ(Ask({0, 51, 24, 11})[4], 1);
    EXPECT_EQ(Answer("reboot"), "ok");
    EXPECT_EQ(Ask({0, 51, 24, 11})[4], 1);
}

TEST_F(ConsoleTest, WhatIsSetByHandOutlivesAReboot) {
    Ask({1, 1, 7});  // the system's HFI level
    Ask({22, 44});   // point 300
    Ask({1, 5, 2});  // an option
    for (const char* line : {"module 64 absent", "clock 0 3", "mute-module 33 on", "answer-delay 5",
                             "time-factor 9", "silent on", "drip 3", "overcurrent 9",
                             "feedback 8 1", "defer 1", "hold on", "fault on"}) {
        EXPECT_EQ(Answer(line), "ok") << line;
    }
    EXPECT_EQ(Answer("reboot"), "ok");
    EXPECT_EQ(Listed("hfi"), "7");
    EXPECT_EQ(Listed("point.300"), "thrown");
    EXPECT_EQ(Listed("options"), "2");
    EXPECT_FALSE(unit_.state().layout.At(64).Present());
    EXPECT_EQ(Listed("traction.0.clock"), "3");
    EXPECT_EQ(Listed("muted"), "33");
    EXPECT_EQ(Listed("answer-delay"), "5");
    EXPECT_EQ(Listed("time-factor"), "9");
    EXPECT_EQ(Listed("feedback"), "8");
    EXPECT_TRUE(faults_.silent());
    Answer("silent off");
    EXPECT_EQ(faults_.Apply({0x08, 0xF8})->byteGap, milliseconds(3));
    // The others end.
    EXPECT_EQ(Listed("overcurrent"), "");
    EXPECT_EQ(Listed("hold"), "0");
    EXPECT_EQ(Listed("fault"), "0");
    EXPECT_EQ(Listed("pending-reports"), "0");
    EXPECT_NE(Ask({1, 2}), Payload{}) << "still deferred";
}

TEST_F(ConsoleTest, ClockMuteAndAnswerDelayTakeEffect) {
    Answer("clock 0 3");
    Answer("answer-delay 0");
    EXPECT_EQ(Ask({0, 32, 8, 15})[4], 3);
    Answer("mute-module 32 on");
    EXPECT_EQ(Ask({0, 32, 8, 15}), Payload{});
    Answer("mute-module 32 off");
    EXPECT_EQ(Ask({0, 32, 8, 15})[4], 3);
}

TEST_F(ConsoleTest, FaultCommandsReachTheFaults) {
    Answer("late 40 1");
    Answer("drip 3");
    Answer("double 1");
    Answer("short 1");
    Answer("stray 81");
    const auto outgoing = faults_.Apply({0x08, 0xF8});
    ASSERT_TRUE(outgoing);
    EXPECT_EQ(outgoing->bytes, (std::vector<std::uint8_t>{0x81, 0x08, 0x08}));
    EXPECT_EQ(outgoing->delay, milliseconds(40));
    EXPECT_EQ(outgoing->byteGap, milliseconds(3));
    Answer("bad-checksum 1");
    EXPECT_EQ(faults_.Apply({0x08, 0xF8})->bytes.back(), 0xF9);
    Answer("silent-after 0");
    EXPECT_TRUE(faults_.silent());
    Answer("silent off");
    EXPECT_FALSE(faults_.silent());
    Answer("defer 1");
    EXPECT_EQ(Ask({1, 2}), Payload{});
}

struct ActionCase {
    const char* name;
    const char* line;
    ConsoleAction action;
};

class ConsoleActionOf : public ConsoleTest, public testing::WithParamInterface<ActionCase> {};

TEST_P(ConsoleActionOf, IsLeftToTheProgram) {
    EXPECT_EQ(Run(GetParam().line).action, GetParam().action);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ConsoleActionOf,
    testing::Values(ActionCase{"HangUp", "hang-up", ConsoleAction::kHangUp},
                    ActionCase{"Reconnect", "reconnect", ConsoleAction::kReconnect},
                    ActionCase{"TraceOn", "trace on", ConsoleAction::kTraceOn},
                    ActionCase{"TraceAll", "trace all", ConsoleAction::kTraceAll},
                    ActionCase{"TraceOff", "trace off", ConsoleAction::kTraceOff},
                    ActionCase{"Quit", "quit", ConsoleAction::kQuit},
                    ActionCase{"Exit", "exit", ConsoleAction::kQuit},
                    ActionCase{"Other", "fault on", ConsoleAction::kNone},
                    ActionCase{"Wrong", "quit now", ConsoleAction::kNone}),
    [](const auto& row) { return row.param.name; });

TEST_F(ConsoleTest, DumpEndsWithOk) {
    const std::string text = Answer("dump");
    EXPECT_TRUE(text.starts_with("unit-type=2\n"));
    EXPECT_NE(text.find("\nsilent=0\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("\nok"));
}

TEST_F(ConsoleTest, StateShowsTablesAndTheLine) {
    const std::string text = Answer("state");
    EXPECT_TRUE(text.starts_with("Unit\n  type             KB-E\n")) << text;
    EXPECT_TRUE(text.ends_with("Line\n  rate     no line\n  answers  every command\n\nok")) << text;
    Answer("silent on");
    EXPECT_THAT(Answer("state"), HasSubstr("answers  nothing\n"));
}

TEST_F(ConsoleTest, StateShowsArmedFaultsUntilTheyAreCleared) {
    for (const char* line : {"late 500 2", "bad-checksum 1", "short 3", "double 1", "stray FF 08",
                             "drip 50", "defer 2", "silent-after 4"}) {
        EXPECT_EQ(Answer(line), "ok") << line;
    }
    const std::string text = Answer("state");
    EXPECT_THAT(text, HasSubstr("answers  every command, with faults\n"));
    EXPECT_THAT(text, HasSubstr("Armed faults (\"clear-faults\" ends them)\n"
                                "  silent-after  4 more replies\n"
                                "  late          500 ms, next 2 replies\n"
                                "  bad-checksum  next reply\n"
                                "  short         next 3 replies\n"
                                "  double        next reply\n"
                                "  stray         2 bytes before the next reply\n"
                                "  drip          50 ms more between two bytes\n"
                                "  defer         next 2 replies with content\n"));
    EXPECT_EQ(Answer("clear-faults"), "ok");
    EXPECT_THAT(Answer("state"), Not(HasSubstr("Armed faults")));
    EXPECT_THAT(Answer("state"), HasSubstr("answers  every command\n"));
    const auto outgoing = faults_.Apply({0x08, 0xF8});
    EXPECT_EQ(outgoing->bytes, (std::vector<std::uint8_t>{0x08, 0xF8}));
    EXPECT_EQ(outgoing->delay, milliseconds(0));
    EXPECT_EQ(outgoing->byteGap, milliseconds(0));
    EXPECT_NE(Ask({1, 2}), Payload{}) << "still deferred";
}

TEST_F(ConsoleTest, StateShowsFaultsWithoutAnEndAndSilence) {
    Answer("late 20");
    EXPECT_THAT(Answer("state"), HasSubstr("  late  20 ms, every reply\n"));
    Answer("silent on");
    EXPECT_THAT(Answer("state"), HasSubstr("  silent  no reply\n"));
}

}  // namespace
}  // namespace zelvar::sim
