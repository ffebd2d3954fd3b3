// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The built program over its pseudo-terminal. What it does with a frame is tested beside this;
// here it is the line, the link, the console and the ends of all three.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <memory>
#include <poll.h>
#include <signal.h>  // NOLINT: kill() is not in <csignal>
#include <string>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "harness/child_process.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;
using e2e::ChildProcess;
using e2e::kLimit;
using e2e::WaitReadable;

/// Closes what it holds.
class Handle {
  public:
    explicit Handle(int fd = -1) : fd_(fd) {}
    ~Handle() { Close(); }
    Handle(Handle&& other) noexcept : fd_(other.fd_) { other.fd_ = -1; }
    Handle& operator=(Handle&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    int get() const { return fd_; }
    void Close() {
        if (fd_ >= 0) {
            close(fd_);
        }
        fd_ = -1;
    }

  private:
    int fd_;
};

class ProgramTest : public testing::Test {
  protected:
    void Start(const std::vector<std::string>& options) {
        std::vector<std::string> words = {ZELVARSIM_PROGRAM, "--layout",
                                          ZELVAR_TEST_LAYOUTS "/mixed.toml"};
        words.insert(words.end(), options.begin(), options.end());
        process_ = std::make_unique<ChildProcess>(words);
    }
    void StartOnLink(std::vector<std::string> options = {"--no-pacing", "--unit-delay", "0"}) {
        options.insert(options.end(), {"--link", link_.string()});
        Start(options);
        ASSERT_EQ(ReadLine(), "ready " + link_.string());
        OpenLine();
    }
    void OpenLine() {
        line_ = Handle(open(link_.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
        ASSERT_GE(line_.get(), 0);
    }

    /// The program's next line; empty when none comes.
    std::string ReadLine() { return process_->Receive().value_or(""); }
    void Type(const std::string& line) { ASSERT_TRUE(process_->Send(line)); }
    std::string Command(const std::string& line) {
        Type(line);
        return ReadLine();
    }

    void SendFrame(const Payload& data) {
        const Bytes bytes = EncodeFrame(data);
        ASSERT_EQ(write(line_.get(), bytes.data(), bytes.size()), ssize_t(bytes.size()));
    }
    /// So many bytes, or those that came until the limit or the end of the line.
    Bytes Receive(std::size_t count) {
        Bytes bytes;
        std::uint8_t byte = 0;
        while (bytes.size() < count && WaitReadable(line_.get(), kLimit) &&
               read(line_.get(), &byte, 1) == 1) {
            bytes.push_back(byte);
        }
        return bytes;
    }
    /// The exit status, or -1 when the program does not end.
    int WaitForEnd() { return process_->WaitForExit().value_or(-1); }
    bool LinkExists() const {
        return std::filesystem::is_symlink(std::filesystem::symlink_status(link_));
    }

    e2e::TempFolder temporary_;
    const std::filesystem::path folder_ = temporary_.Path(".");
    const std::filesystem::path link_ = temporary_.Path("line");
    std::unique_ptr<ChildProcess> process_;
    Handle line_;
};

const Bytes kEmptyReply = {0x08, 0xF8};

TEST_F(ProgramTest, AnswersOverTheLink) {
    StartOnLink();
    SendFrame({1, 2});
    EXPECT_EQ(Receive(6), (Bytes{0x0C, 0x81, 0x82, 0x99, 0x8A, 0xCE}));
}

TEST_F(ProgramTest, ConsoleReportsReachTheLine) {
    StartOnLink();
    EXPECT_EQ(Command("overcurrent 133"), "ok");
    SendFrame({});
    EXPECT_EQ(Receive(4), (Bytes{0x0A, 0xB3, 0x85, 0xBE}));
    EXPECT_EQ(Command("nonsense"), "error unknown command nonsense; \"help\" lists them");
}

TEST_F(ProgramTest, ServesTheNextOpeningToo) {
    StartOnLink();
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply);
    for (int opening = 0; opening < 3; ++opening) {
        line_.Close();
        OpenLine();
        SendFrame({});
        EXPECT_EQ(Receive(2), kEmptyReply);
    }
}

TEST_F(ProgramTest, HangUpIsSeenAndReconnectBringsTheLinkBack) {
    StartOnLink();
    EXPECT_EQ(Command("hang-up"), "ok");
    pollfd entry{line_.get(), POLLIN, 0};
    ASSERT_EQ(::poll(&entry, 1, static_cast<int>(kLimit.count())), 1);
    EXPECT_NE(entry.revents & POLLHUP, 0);
    EXPECT_FALSE(LinkExists());
    line_.Close();
    Type("reconnect");
    EXPECT_EQ(ReadLine(), "ready " + link_.string());
    EXPECT_EQ(ReadLine(), "ok");
    OpenLine();
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply);
}

TEST_F(ProgramTest, QuitEndsItAndRemovesTheLink) {
    StartOnLink();
    EXPECT_TRUE(LinkExists());
    EXPECT_EQ(Command("quit"), "ok");
    EXPECT_EQ(WaitForEnd(), 0);
    EXPECT_FALSE(LinkExists());
}

class ProgramSignal : public ProgramTest, public testing::WithParamInterface<int> {};

TEST_P(ProgramSignal, EndsItAndRemovesTheLink) {
    StartOnLink();
    kill(process_->Id(), GetParam());
    EXPECT_EQ(WaitForEnd(), 0);
    EXPECT_FALSE(LinkExists());
}

INSTANTIATE_TEST_SUITE_P(Signals, ProgramSignal, testing::Values(SIGTERM, SIGINT));

TEST_F(ProgramTest, GoesOnServingAfterTheEndOfItsInput) {
    StartOnLink();
    process_->CloseInput();
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply);
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply);
}

TEST_F(ProgramTest, ReplacesAStaleLinkButNoFile) {
    std::filesystem::create_symlink("/nonexistent/line", link_);
    StartOnLink();
    Command("quit");
    EXPECT_EQ(WaitForEnd(), 0);
    std::filesystem::create_directory(link_);
    Start({"--link", link_.string()});
    EXPECT_EQ(WaitForEnd(), 1);
    EXPECT_TRUE(std::filesystem::is_directory(link_));
}

TEST_F(ProgramTest, ReplacesAStaleLinkWhosePseudoTerminalAnotherOneHasNow) {
    StartOnLink();
    const auto stale = link_.parent_path() / "stale";
    std::filesystem::create_symlink(std::filesystem::read_symlink(link_), stale);
    const std::unique_ptr<ChildProcess> first = std::move(process_);
    Start({"--link", stale.string()});
    EXPECT_EQ(ReadLine(), "ready " + stale.string());
    Command("quit");
    EXPECT_EQ(WaitForEnd(), 0);
    kill(first->Id(), SIGTERM);
    EXPECT_EQ(first->WaitForExit(), 0);
}

TEST_F(ProgramTest, LeavesALinkToAnotherRunningOneAlone) {
    StartOnLink();
    const auto target = std::filesystem::read_symlink(link_);
    std::unique_ptr<ChildProcess> first = std::move(process_);
    for (const bool exclusive : {false, true}) {
        if (exclusive) {
            ASSERT_EQ(ioctl(line_.get(), TIOCEXCL), 0);
        }
        Start({"--link", link_.string()});
        EXPECT_EQ(WaitForEnd(), 1);
        EXPECT_EQ(process_->Errors(),
                  "zelvarsim: " + link_.string() + ": another zelvarsim serves it\n");
        EXPECT_EQ(std::filesystem::read_symlink(link_), target);
    }
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply) << "the first one goes on";
    // Killed, it leaves its link behind, which is free again then.
    first.reset();
    line_.Close();
    EXPECT_TRUE(LinkExists());
    StartOnLink();
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply);
    const std::filesystem::directory_iterator files(folder_);
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "nothing but the link";
}

TEST_F(ProgramTest, LeavesALinkAloneThatIsNoLongerItsOwn) {
    StartOnLink();
    std::filesystem::remove(link_);
    std::filesystem::create_symlink("/nonexistent/other", link_);
    Command("quit");
    EXPECT_EQ(WaitForEnd(), 0);
    EXPECT_TRUE(LinkExists());
}

TEST_F(ProgramTest, TakesTheLinesTimeAtTheRateOfTheOtherEnd) {
    StartOnLink({"--unit-delay", "0"});
    constexpr int kExchanges = 20;
    constexpr int kBytes = kExchanges * 4;  // two out, two in
    const auto exchange = [&](speed_t rate) {
        termios settings{};
        tcgetattr(line_.get(), &settings);
        cfsetospeed(&settings, rate);
        cfsetispeed(&settings, rate);
        tcsetattr(line_.get(), TCSANOW, &settings);
        const auto start = Clock::now();
        for (int count = 0; count < kExchanges; ++count) {
            SendFrame({});
            EXPECT_EQ(Receive(2), kEmptyReply);
        }
        return Clock::now() - start;
    };
    // A line is never faster than its rate.
    EXPECT_GE(exchange(B19200), std::chrono::nanoseconds(572'916) * kBytes);
    EXPECT_GE(exchange(B38400), std::chrono::nanoseconds(286'458) * kBytes);
}

/// Runs of a program each, with time that passes by `run` only.
class ProgramRuns : public ProgramTest {
  protected:
    std::string DumpOfARun(const std::string& seed) {
        StartOnLink({"--no-pacing", "--unit-delay", "0", "--layout",
                     ZELVAR_TEST_LAYOUTS "/loop.toml", "--time-factor", "0", "--seed", seed});
        // The blocks of the loop forward with an acceleration, the DCC train back to its buffer
        // stop.
        for (const Payload& command : {Payload{34, 1, 64 + 30, 5}, Payload{34, 2, 64 + 45, 5},
                                       Payload{34, 3, 64 + 25, 5}, Payload{40, 0, 64 + 2, 3}}) {
            SendFrame(command);
            EXPECT_EQ(Receive(2), kEmptyReply);
        }
        EXPECT_EQ(Command("run 20000"), "ok");
        Type("dump");
        std::string dump;
        for (std::string line = ReadLine(); !line.empty() && line != "ok"; line = ReadLine()) {
            dump += line + '\n';
        }
        EXPECT_EQ(Command("quit"), "ok");
        EXPECT_EQ(WaitForEnd(), 0);
        line_.Close();
        return dump;
    }
};

TEST_F(ProgramRuns, AreTheSameWithTheSameSeedAndTheSameCommands) {
    const std::string first = DumpOfARun("7");
    EXPECT_THAT(first, testing::HasSubstr("\nsimulated-ms=20000\n"));
    EXPECT_THAT(first, testing::HasSubstr("\nfault=0\n")) << "nothing cut the run short";
    EXPECT_EQ(DumpOfARun("7"), first);
}

TEST_F(ProgramRuns, DifferWithAnotherSeed) {
    const auto red = [](const std::string& dump) {
        const std::size_t from = dump.find("\ntrain.red=section:");
        return from == std::string::npos ? "" : dump.substr(from, dump.find('\n', from + 1) - from);
    };
    const std::string first = red(DumpOfARun("7"));
    EXPECT_NE(first, "");
    EXPECT_NE(red(DumpOfARun("8")), first);
}

TEST_F(ProgramTest, TracePrintsTheFrames) {
    StartOnLink();
    EXPECT_EQ(Command("trace on"), "ok");
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply) << "an empty poll, which is left out";
    SendFrame({1, 0});
    const auto withoutTime = [](const std::string& line) {
        constexpr std::size_t kTime = 12;
        return line.substr(std::min(kTime, line.size()));
    };
    EXPECT_EQ(withoutTime(ReadLine()), "  > 0A 81 80 F5                 reset the fault");
    EXPECT_EQ(withoutTime(ReadLine()), "  < 08 F8                       acknowledged");
    EXPECT_EQ(Command("trace off"), "ok");
    EXPECT_EQ(Receive(2), kEmptyReply);
}

TEST_F(ProgramTest, TracesFromTheStartWithTheTimeOfDay) {
    StartOnLink({"--no-pacing", "--unit-delay", "0", "--trace"});
    SendFrame({});
    EXPECT_THAT(ReadLine(),
                testing::ContainsRegex(
                    "^[0-2][0-9]:[0-5][0-9]:[0-6][0-9].[0-9][0-9][0-9]  > 08 F8 .*poll$"));
}

TEST_F(ProgramTest, ExplainsALogFromItsStandardInput) {
    Start({"--explain", "-"});
    Type(">> 0B A2 85 CC 82              << 08 F8");
    process_->CloseInput();
    EXPECT_EQ(ReadLine(),
              ">> 0B A2 85 CC 82              << 08 F8                       "
              "analog speed: block 5, speed 12 forward -> acknowledged");
    EXPECT_EQ(WaitForEnd(), 0);
}

TEST_F(ProgramTest, ExplainsALogFromAFileAndKeepsTheStrangeLines) {
    const std::filesystem::path log = folder_ / "log";
    std::ofstream(log) << ">> 28 D8                       << 0A B3 85 BE\nhello\n";
    Start({"--explain", log.string()});
    EXPECT_THAT(ReadLine(),
                testing::EndsWith("poll [stop] -> report: overcurrent in block 133 detected"));
    EXPECT_EQ(ReadLine(), "? line 2: hello");
    EXPECT_EQ(WaitForEnd(), 0);
}

TEST_F(ProgramTest, RefusesToExplainWhatItCannotRead) {
    for (const std::filesystem::path& path : {folder_ / "none", folder_}) {
        Start({"--explain", path.string()});
        EXPECT_EQ(WaitForEnd(), 1) << path;
    }
}

TEST_F(ProgramTest, ExplainsAnEmptyFile) {
    const std::filesystem::path log = folder_ / "log";
    std::ofstream(log).flush();
    Start({"--explain", log.string()});
    EXPECT_EQ(WaitForEnd(), 0);
}

TEST_F(ProgramTest, ServesADevice) {
    const e2e::PseudoTerminal terminal;
    Start({"--device", terminal.Device()});
    EXPECT_EQ(ReadLine(), "ready " + terminal.Device());
    line_ = Handle(dup(terminal.Master()));
    SendFrame({});
    EXPECT_EQ(Receive(2), kEmptyReply);
}

TEST_F(ProgramTest, EndsWhenItsDeviceGoes) {
    e2e::PseudoTerminal terminal;
    Start({"--device", terminal.Device()});
    EXPECT_TRUE(ReadLine().starts_with("ready "));
    terminal.HangUp();
    EXPECT_EQ(WaitForEnd(), 1);
}

TEST_F(ProgramTest, RefusesUnknownOptionsAndMissingDevices) {
    Start({"--bogus"});
    EXPECT_EQ(WaitForEnd(), 2);
    EXPECT_THAT(process_->Errors(), testing::HasSubstr("--bogus"));
    Start({"--device", (folder_ / "none").string()});
    EXPECT_EQ(WaitForEnd(), 1);
}

TEST_F(ProgramTest, TellsItsVersionAndItsOptions) {
    Start({"--version"});
    EXPECT_TRUE(ReadLine().starts_with("zelvarsim "));
    EXPECT_EQ(WaitForEnd(), 0);
    Start({"--help"});
    EXPECT_THAT(ReadLine(), testing::StartsWith("A simulated central unit"));
    EXPECT_EQ(WaitForEnd(), 0);
}

TEST_F(ProgramTest, FindsTheShippedLayouts) {
    Start({"--list-layouts"});
    EXPECT_TRUE(ReadLine().starts_with("club "));
    EXPECT_TRUE(ReadLine().starts_with("largest "));
    EXPECT_TRUE(ReadLine().starts_with("starter "));
    EXPECT_EQ(WaitForEnd(), 0);
    Start({"--link", link_.string(), "--layout", "starter"});
    EXPECT_EQ(ReadLine(), "ready " + link_.string());
}

TEST_F(ProgramTest, RefusesALayoutThatIsWrong) {
    for (const char* layout : {"big", "/nowhere/attic.toml", "/"}) {
        Start({"--link", link_.string(), "--layout", layout});
        EXPECT_EQ(WaitForEnd(), 2) << layout;
        EXPECT_FALSE(std::filesystem::exists(link_));
    }
}

}  // namespace
}  // namespace zelvar::sim
