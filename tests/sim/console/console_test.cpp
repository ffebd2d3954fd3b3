// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console.h"

#include "sim/unit/reports.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using std::chrono::milliseconds;

class ConsoleTest : public UnitFixture {
  protected:
    ConsoleResult Run(std::string_view line) {
        ConsoleContext context{unit_, faults_, now_};
        return RunConsoleLine(context, line);
    }
    std::string Answer(std::string_view line) { return Run(line).text; }

    Faults faults_;
};

struct LineCase {
    const char* name;
    const char* line;
    const char* answer;
};

class ConsoleLine : public ConsoleTest, public testing::WithParamInterface<LineCase> {};

TEST_P(ConsoleLine, IsAnsweredWith) {
    EXPECT_EQ(Answer(GetParam().line), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Right, ConsoleLine,
    testing::Values(
        LineCase{"Blank", "", ""}, LineCase{"OnlyBlanks", "  \t ", ""},
        LineCase{"Overcurrent", "overcurrent 255", "ok"},
        LineCase{"BlanksAround", "  release   0x10 \r", "ok"},
        LineCase{"Speed", "speed 5 63 reverse", "ok"},
        LineCase{"Feedback", "feedback 2047 1", "ok"}, LineCase{"Fault", "fault on", "ok"},
        LineCase{"Hold", "hold off", "ok"}, LineCase{"ModuleAbsent", "module 32 absent", "ok"},
        LineCase{"ModuleStatus", "module 127 status 0x0F", "ok"}, LineCase{"Ms", "ms 63 127", "ok"},
        LineCase{"Clock", "clock 0 3", "ok"}, LineCase{"Mute", "mute-module 32 on", "ok"},
        LineCase{"AnswerDelay", "answer-delay 0", "ok"}, LineCase{"Reboot", "reboot", "ok"},
        LineCase{"Silent", "silent on", "ok"}, LineCase{"SilentAfter", "silent-after 3", "ok"},
        LineCase{"Late", "late 100", "ok"}, LineCase{"LateCount", "late 100 2", "ok"},
        LineCase{"BadChecksum", "bad-checksum 1", "ok"}, LineCase{"Short", "short 1", "ok"},
        LineCase{"Double", "double 1", "ok"}, LineCase{"Stray", "stray FF 8 0a", "ok"},
        LineCase{"Drip", "drip 5", "ok"}, LineCase{"Defer", "defer 1", "ok"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Wrong, ConsoleLine,
    testing::Values(
        LineCase{"Unknown", "explode 5", "error unknown command explode"},
        LineCase{"CaseCounts", "Fault on", "error unknown command Fault"},
        LineCase{"TooFew", "speed 1 2", "error usage: speed B S forward|reverse"},
        LineCase{"TooMany", "reboot now", "error usage: reboot"},
        LineCase{"BlockTooHigh", "overcurrent 256", "error B must be 0..255"},
        LineCase{"BlockNegative", "release -1", "error B must be 0..255"},
        LineCase{"BlockText", "speed five 5 forward", "error B must be 0..255"},
        LineCase{"SpeedTooHigh", "speed 5 64 forward", "error S must be 0..63"},
        LineCase{"Direction", "speed 5 6 up", "error forward or reverse expected"},
        LineCase{"InputTooHigh", "feedback 2048 1", "error I must be 0..2047"},
        LineCase{"InputState", "feedback 5 2", "error 0 or 1 expected"},
        LineCase{"Switch", "fault yes", "error on or off expected"},
        LineCase{"HoldSwitch", "hold 1", "error on or off expected"},
        LineCase{"Address", "module 128 absent", "error ADDRESS must be 0..127"},
        LineCase{"ModuleWord", "module 5 gone", "error absent or status BYTE expected"},
        LineCase{"ModuleAbsentMore", "module 5 absent 3", "error absent or status BYTE expected"},
        LineCase{"ModuleNoByte", "module 5 status", "error absent or status BYTE expected"},
        LineCase{"StatusByte", "module 5 status 0x80", "error BYTE must be 0..127"},
        LineCase{"MsLine", "ms 64 1", "error M must be 0..63"},
        LineCase{"MsValue", "ms 6 128", "error V must be 0..127"},
        LineCase{"ClockLine", "clock x 1", "error M must be 0..63"},
        LineCase{"ClockValue", "clock 1 x", "error V must be 0..127"},
        LineCase{"MuteAddress", "mute-module x on", "error ADDRESS must be 0..127"},
        LineCase{"MuteSwitch", "mute-module 5 1", "error on or off expected"},
        LineCase{"AnswerDelay", "answer-delay -1", "error N must be 0..10000"},
        LineCase{"SilentSwitch", "silent maybe", "error on or off expected"},
        LineCase{"LateText", "late soon", "error MS must be 0..3600000"},
        LineCase{"LateCount", "late 5 x", "error N must be 0..1000000"},
        LineCase{"Replies", "double 1.5", "error N must be 0..1000000"},
        LineCase{"StrayDigits", "stray 0 100", "error two hexadecimal digits expected: 100"},
        LineCase{"StrayText", "stray G0", "error two hexadecimal digits expected: G0"},
        LineCase{"StraySign", "stray -1", "error two hexadecimal digits expected: -1"},
        LineCase{"Drip", "drip 3600001", "error MS must be 0..3600000"},
        LineCase{"Trace", "trace 1", "error on or off expected"}),
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
                    ActionCase{"TraceOff", "trace off", ConsoleAction::kTraceOff},
                    ActionCase{"Quit", "quit", ConsoleAction::kQuit},
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
    EXPECT_NE(Answer("state").find("answers  nothing\n"), std::string::npos);
}

TEST_F(ConsoleTest, HelpTellsOfEveryCommandInAlignedColumnsAndEndsWithOk) {
    std::istringstream lines(Answer("help"));
    std::size_t column = 0;
    for (const auto table : ConsoleTables()) {
        for (const ConsoleCommand& command : table) {
            std::string line;
            std::getline(lines, line);
            EXPECT_TRUE(line.starts_with(CommandForm(command) + " ")) << line;
            ASSERT_TRUE(line.ends_with(command.help)) << line;
            const std::size_t start = line.size() - command.help.size();
            column = column == 0 ? start : column;
            EXPECT_EQ(start, column) << line;
        }
    }
    std::string last;
    std::getline(lines, last);
    EXPECT_EQ(last, "ok");
}

/// What `zelvarsim` plays when nothing else is asked for.
Layout ClubLayout() {
    return LayoutOf(ZELVAR_SHIPPED_LAYOUTS "/club.toml");
}

TEST_F(ConsoleTest, EveryCommandHasOneSentenceAndAnExampleThatIsRightOnTheClubsLayout) {
    unit_ = CentralUnit(ClubLayout());
    for (const auto table : ConsoleTables()) {
        for (const ConsoleCommand& command : table) {
            unit_.SetTimeFactor(0, now_);  // as "run" needs it
            EXPECT_TRUE(command.help.ends_with('.')) << command.name;
            EXPECT_EQ(command.help.find(". "), std::string_view::npos) << command.name;
            const std::string answer = Answer(command.example);
            EXPECT_EQ(SplitWords(command.example).at(0), command.name);
            EXPECT_TRUE(answer.ends_with("ok")) << command.example << ": " << answer;
        }
    }
}

TEST_F(ConsoleTest, TheExampleOfAPointMovesOneOnTheClubsTrack) {
    const int point = *ParseInt(SplitWords(FindConsoleCommand("point")->example).at(1), 0, 511);
    bool found = false;
    for (const TrackSection& section : ClubLayout().track.sections) {
        found = found || section.front.point == point || section.back.point == point;
    }
    EXPECT_TRUE(found) << point;
}

TEST_F(ConsoleTest, HelpOfOneCommandHasItsExample) {
    EXPECT_EQ(Answer("help silent"),
              "silent on|off\n  Answers nothing, or everything again.\n  Example: silent on\nok");
    EXPECT_EQ(Answer("help nonsense"), "error unknown command nonsense");
}

}  // namespace
}  // namespace zelvar::sim
