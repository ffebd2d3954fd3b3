// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The built program with a person at its console: typed keys go in and the screen's bytes come out
// of a real pseudo-terminal.
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <poll.h>
#include <signal.h>  // NOLINT: kill() is not in <csignal>
#include <sstream>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include "sim/protocol/wire.h"

namespace zelvar::sim {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

constexpr milliseconds kLimit{5000};  // far above anything that has to happen
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
    void SetUp() override {
        std::string pattern = testing::TempDir() + "zelvarsimXXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder_ = pattern;
        Start();
    }
    void TearDown() override {
        End();
        std::filesystem::remove_all(folder_);
    }

    void Start(unsigned short columns = 80) {
        End();
        screen_.clear();
        master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        ASSERT_GE(master_, 0);
        ASSERT_EQ(grantpt(master_), 0);
        ASSERT_EQ(unlockpt(master_), 0);
        const std::string name = ptsname(master_);
        const winsize size{24, columns, 0, 0};
        ASSERT_EQ(ioctl(master_, TIOCSWINSZ, &size), 0);
        const std::string link = Link();
        process_ = fork();
        ASSERT_GE(process_, 0);
        if (process_ == 0) {
            Become(name, link);
        }
        ASSERT_TRUE(Shows(kPrompt)) << screen_;
    }
    /// The child: a session of its own, so that the terminal is its terminal.
    [[noreturn]] void Become(const std::string& terminal, const std::string& link) const {
        setsid();
        const int fd = open(terminal.c_str(), O_RDWR);
        ioctl(fd, TIOCSCTTY, 0);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            dup2(fd, standard);
        }
        setenv("TERM", "xterm", 1);
        setenv("LC_ALL", "C.UTF-8", 1);
        setenv("XDG_STATE_HOME", folder_.c_str(), 1);
        execl(ZELVARSIM_PROGRAM, "zelvarsim", "--link", link.c_str(), "--no-pacing", nullptr);
        _exit(127);
    }
    void End() {
        if (process_ > 0) {
            kill(process_, SIGKILL);
            waitpid(process_, nullptr, 0);
            process_ = -1;
        }
        if (master_ >= 0) {
            close(master_);
            master_ = -1;
        }
    }

    void Type(const std::string& keys) {
        ASSERT_EQ(write(master_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }
    /// Waits until the terminal has got the text since the last `Clear`.
    bool Shows(const std::string& text) {
        const auto end = Clock::now() + kLimit;
        while (screen_.find(text) == std::string::npos) {
            pollfd entry{master_, POLLIN, 0};
            const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
            std::array<char, 4096> chunk{};
            if (left.count() <= 0 || ::poll(&entry, 1, static_cast<int>(left.count())) != 1) {
                return false;
            }
            const ssize_t count = read(master_, chunk.data(), chunk.size());
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
    /// The exit code, or -1 when it goes on running or was killed.
    int WaitForEnd() {
        const auto end = Clock::now() + kLimit;
        while (Clock::now() < end) {
            int status = 0;
            if (waitpid(process_, &status, WNOHANG) == process_) {
                process_ = -1;
                return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            }
            ::poll(nullptr, 0, 5);
        }
        return -1;
    }
    std::string Link() const { return (folder_ / "line").string(); }
    std::string History() const {
        std::ifstream file(folder_ / "zelvarsim" / "history");
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder_;
    pid_t process_ = -1;
    int master_ = -1;
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
    kill(process_, SIGKILL);
    WaitForEnd();
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
    pollfd entry{line, POLLIN, 0};
    EXPECT_EQ(::poll(&entry, 1, static_cast<int>(kLimit.count())), 1);
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
    kill(process_, SIGSTOP);
    int status = 0;
    ASSERT_EQ(waitpid(process_, &status, WUNTRACED), process_);
    Clear();
    kill(process_, SIGCONT);
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
    termios before{};
    const int terminal = open(ptsname(master_), O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(tcgetattr(terminal, &before), 0);
    EXPECT_EQ(before.c_lflag & ICANON, 0U) << "the editor has not taken the terminal over";
    Type(GetParam().keys);
    EXPECT_EQ(WaitForEnd(), 0);
    termios after{};
    ASSERT_EQ(tcgetattr(terminal, &after), 0);
    EXPECT_NE(after.c_lflag & ICANON, 0U);
    EXPECT_NE(after.c_lflag & ECHO, 0U);
    EXPECT_FALSE(std::filesystem::is_symlink(std::filesystem::symlink_status(Link())));
    close(terminal);
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
