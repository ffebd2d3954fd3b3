// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The built program with a person at its console: typed keys go in and the screen's bytes come out
// of a real pseudo-terminal.
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <optional>
#include <poll.h>
#include <signal.h>  // NOLINT: kill() is not in <csignal>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include "harness/child_process.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {
namespace {

using e2e::kLimit;
using e2e::WaitReadable;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kPrompt = "zelvarsim> ";
constexpr const char* kUp = "\x1b[A";
constexpr const char* kLeft = "\x1b[D";
constexpr const char* kControlC = "\x03";
constexpr const char* kControlD = "\x04";
constexpr const char* kControlR = "\x12";
constexpr const char* kControlV = "\x16";
constexpr const char* kControlU = "\x15";
constexpr const char* kEscape = "\x1b";

class TerminalTest : public testing::Test {
  protected:
    void SetUp() override { Start(); }

    void Start(unsigned short columns = 80) {
        process_.reset();
        screen_.clear();
        terminal_.emplace(e2e::PseudoTerminal::Kind::kScreen, columns);
        process_.emplace(
            std::vector<std::string>{ZELVARSIM_PROGRAM, "--link", Link(), "--no-pacing"},
            e2e::StartOptions{
                {{"TERM", "xterm"}, {"LC_ALL", "C.UTF-8"}, {"XDG_STATE_HOME", folder_.Path(".")}},
                {},
                &*terminal_});
        ASSERT_TRUE(Shows(kPrompt)) << screen_;
    }

    void Type(const std::string& keys) { terminal_->Type(keys); }
    /// Waits until the terminal has got the text since the last `Clear`.
    bool Shows(const std::string& text) {
        while (screen_.find(text) == std::string::npos) {
            std::array<char, 4096> chunk{};
            if (!WaitReadable(terminal_->Master(), kLimit)) {
                return false;
            }
            const ssize_t count = read(terminal_->Master(), chunk.data(), chunk.size());
            if (count <= 0) {
                return false;
            }
            screen_.append(chunk.data(), static_cast<std::size_t>(count));
        }
        return true;
    }
    void Clear() { screen_.clear(); }
    /// Types a line's keys and Enter; what the terminal shows up to the next prompt.
    std::string Enter(const std::string& keys) {
        Clear();
        Type(keys + "\r");
        EXPECT_TRUE(Shows(std::string("\r\n") + kPrompt)) << screen_;
        return screen_;
    }
    /// The exit status, or -1 when the program does not end.
    int WaitForEnd() { return process_->WaitForExit().value_or(-1); }
    std::string Link() const { return folder_.Path("line"); }
    std::string History() const {
        std::ifstream file(folder_.Path("zelvarsim/history"));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    e2e::TempFolder folder_;
    std::optional<e2e::PseudoTerminal> terminal_;
    std::optional<e2e::ChildProcess> process_;
    std::string screen_;
};

TEST_F(TerminalTest, ShowsHowToGoOn) {
    EXPECT_THAT(screen_, HasSubstr("ready " + Link() +
                                   "\r\nIn another terminal: ZELVARCONFIG_PORTS=" + Link() +
                                   " zelvarconfig\r\n\"help\" lists the commands"));
}

TEST_F(TerminalTest, CarriesOutATypedLine) {
    EXPECT_THAT(Enter("fault on"), HasSubstr("fault on\r\nok\r\n"));
}

TEST_F(TerminalTest, ArrowKeysEditTheLine) {
    // "fult on", four to the left, the missing letter.
    EXPECT_THAT(Enter(std::string("fult on") + kLeft + kLeft + kLeft + kLeft + kLeft + kLeft + "a"),
                HasSubstr("\r\nok\r\n"));
    EXPECT_THAT(Enter("dump"), HasSubstr("\r\nfault=1\r\n"));
}

TEST_F(TerminalTest, ArrowUpBringsEarlierLinesBack) {
    Enter("fault on");
    Enter("fault off");
    EXPECT_THAT(Enter(std::string(kUp) + kUp), HasSubstr("\r\nok\r\n"));
    EXPECT_THAT(Enter("dump"), HasSubstr("\r\nfault=1\r\n"));
}

TEST_F(TerminalTest, HistoryOutlivesTheProgram) {
    Enter("speed 5 12 forward");
    Type(kControlD);
    EXPECT_EQ(WaitForEnd(), 0);
    Start();
    EXPECT_THAT(Enter(kUp), HasSubstr("speed 5 12 forward"));
}

TEST_F(TerminalTest, HistoryIsKeptHoweverTheProgramEnds) {
    Enter("hold on");
    process_->Kill();
    EXPECT_THAT(History(), HasSubstr("hold"));
}

TEST_F(TerminalTest, TabCompletesCommandsAndArguments) {
    EXPECT_THAT(Enter("fau\ton"), HasSubstr("\r\nok\r\n"));
    EXPECT_THAT(Enter("speed 5 12 r\t"), HasSubstr("\r\nok\r\n"));
    EXPECT_THAT(Enter("dump"), HasSubstr("block.5=speed:12,direction:reverse"));
}

TEST_F(TerminalTest, TabShowsTheChoices) {
    Type("module 32 \t");
    EXPECT_TRUE(Shows("\r\nabsent  status\r\n")) << screen_;
    EXPECT_TRUE(Shows("zelvarsim> module 32 ")) << screen_;
    EXPECT_THAT(Enter("a\t"), HasSubstr("\r\nok\r\n"));
}

TEST_F(TerminalTest, TheChoicesStayWithinTheTerminalsWidth) {
    Start(40);
    Clear();
    Type("help \t");
    ASSERT_TRUE(Shows("zelvarsim> help ")) << screen_;
    ASSERT_TRUE(Shows("trace")) << screen_;
    std::istringstream lines(screen_);
    std::size_t rows = 0;
    for (std::string line; std::getline(lines, line); ++rows) {
        EXPECT_LE(line.size(), 40U + 1U) << line;  // with its carriage return
    }
    EXPECT_GT(rows, 5U) << screen_;
}

TEST_F(TerminalTest, ATraceComesAboveTheLineBeingTyped) {
    Enter("trace on");
    Clear();
    Type("fault o");
    ASSERT_TRUE(Shows("fault o"));
    Clear();
    const int line = open(Link().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(line, 0);
    const std::vector<std::uint8_t> frame = EncodeFrame({34, 5, 76});
    ASSERT_EQ(write(line, frame.data(), frame.size()), static_cast<ssize_t>(frame.size()));
    // The line goes, the trace comes, the line is back; once for each frame.
    EXPECT_TRUE(Shows("analog speed: block 5, speed 12 forward\r\nzelvarsim> fault o")) << screen_;
    EXPECT_TRUE(Shows("acknowledged\r\nzelvarsim> fault o")) << screen_;
    EXPECT_TRUE(screen_.starts_with("\r\x1b[J")) << screen_;
    close(line);
    EXPECT_THAT(Enter("n"), HasSubstr("\r\nok\r\n"));
    EXPECT_THAT(Enter("dump"), HasSubstr("\r\nfault=1\r\n"));
}

TEST_F(TerminalTest, ALineOverTwoRowsIsTakenAwayWhole) {
    Start(40);
    Enter("trace all");
    Type(std::string(40, 'x'));  // with the prompt 51 characters
    ASSERT_TRUE(Shows(std::string(5, 'x')));
    const int line = open(Link().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(line, 0);
    // The keys are on the screen when the program has come to the frame behind them.
    const std::vector<std::uint8_t> frame = EncodeFrame({});
    ASSERT_EQ(write(line, frame.data(), frame.size()), static_cast<ssize_t>(frame.size()));
    EXPECT_TRUE(Shows("nothing to report\r\n")) << screen_;
    EXPECT_THAT(screen_, HasSubstr("\r\x1b[1A\x1b[J"));
    close(line);
}

TEST_F(TerminalTest, ALoneEscapeDoesNotHoldUpTheLine) {
    Type(kEscape);
    const int line = open(Link().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(line, 0);
    const std::vector<std::uint8_t> frame = EncodeFrame({});
    ASSERT_EQ(write(line, frame.data(), frame.size()), static_cast<ssize_t>(frame.size()));
    EXPECT_TRUE(WaitReadable(line, kLimit));
    close(line);
    EXPECT_THAT(Enter(std::string(kControlU) + "fault on"), HasSubstr("\r\nok\r\n"));
}

TEST_F(TerminalTest, ControlRBringsBackTheLineThatBeginsAsTyped) {
    Enter("fault on");
    Enter("hold on");
    EXPECT_THAT(Enter(std::string("fau") + kControlR), HasSubstr("\r\nok\r\n"));
    EXPECT_TRUE(History().starts_with("_HiStOrY_V2_\nfault"));
    EXPECT_THAT(Enter("dump"), HasSubstr("\r\nfault=1\r\nhold=1\r\n"));
}

TEST_F(TerminalTest, KeysThatWouldWaitForAnotherOneDoNothing) {
    for (const char* keys : {kControlV, "\x1bx"}) {
        Type(keys);
        EXPECT_THAT(Enter("fault on"), HasSubstr("\r\nok\r\n"));
    }
}

TEST_F(TerminalTest, BytesThatAreNoCharacterAreNotTaken) {
    EXPECT_THAT(Enter("fault \xFFon"), HasSubstr("\r\nok\r\n"));
}

TEST_F(TerminalTest, LettersOfTheUsersAlphabetCanBeTyped) {
    EXPECT_THAT(Enter("\xC3\xA9t\xC3\xA9"), HasSubstr("error unknown command \xC3\xA9t\xC3\xA9; "));
}

TEST_F(TerminalTest, AProgramThatWasStoppedShowsItsLineAgain) {
    Type("fault o");
    ASSERT_TRUE(Shows("fault o"));
    kill(process_->Id(), SIGSTOP);
    int status = 0;
    ASSERT_EQ(waitpid(process_->Id(), &status, WUNTRACED | __WALL), process_->Id());
    Clear();
    kill(process_->Id(), SIGCONT);
    EXPECT_TRUE(Shows("zelvarsim> fault o")) << screen_;
    EXPECT_THAT(Enter("n"), HasSubstr("\r\nok\r\n"));
}

TEST_F(TerminalTest, SeveralLinesAtOnceAreAllCarriedOut) {
    Clear();
    Type("fault on\rhold on\rdump\r");
    EXPECT_TRUE(Shows("\r\nfault=1\r\nhold=1\r\n")) << screen_;
}

struct EndCase {
    const char* name;
    const char* keys;
};

class TerminalEnd : public TerminalTest, public testing::WithParamInterface<EndCase> {};

TEST_P(TerminalEnd, EndsTheProgramAndGivesTheTerminalBack) {
    EXPECT_EQ(terminal_->Settings().c_lflag & ICANON, 0U)
        << "the editor has not taken the terminal over";
    Type(GetParam().keys);
    EXPECT_EQ(WaitForEnd(), 0);
    const termios after = terminal_->Settings();
    EXPECT_NE(after.c_lflag & ICANON, 0U);
    EXPECT_NE(after.c_lflag & ECHO, 0U);
    EXPECT_FALSE(std::filesystem::is_symlink(std::filesystem::symlink_status(Link())));
}

INSTANTIATE_TEST_SUITE_P(Keys, TerminalEnd,
                         testing::Values(EndCase{"ControlD", kControlD},
                                         EndCase{"ControlC", kControlC},
                                         EndCase{"ControlCInALine", "fault\x03"},
                                         EndCase{"Quit", "quit\r"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(TerminalTest, ControlDInALineDoesNotEndIt) {
    Type(std::string("fault on") + kControlD);
    EXPECT_THAT(Enter(""), HasSubstr("\r\nok\r\n"));
}

}  // namespace
}  // namespace zelvar::sim
