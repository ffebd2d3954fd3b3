// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/server.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <sys/select.h>
#include <unistd.h>

#include "sim/console/console_completion.h"

namespace zelvar::sim {

namespace {

constexpr std::size_t kConsoleChunk = 1024;
constexpr std::size_t kLongestLine = 65'536;  // anything longer is no command

volatile std::sig_atomic_t endRequested = 0;
volatile std::sig_atomic_t terminalChanged = 0;

extern "C" void RequestEnd(int) {
    endRequested = 1;
}

extern "C" void NoteTerminal(int) {
    terminalChanged = 1;
}

struct Caught {
    int number;
    void (*handler)(int);
};

constexpr Caught kSignals[] = {{SIGTERM, &RequestEnd},
                               {SIGINT, &RequestEnd},
                               {SIGHUP, &RequestEnd},
                               {SIGWINCH, &NoteTerminal},
                               {SIGCONT, &NoteTerminal}};

/// Blocks the signals everywhere but in the wait, which they end.
sigset_t CatchSignals() {
    sigset_t blocked;
    sigset_t original;
    sigemptyset(&blocked);
    for (const Caught& caught : kSignals) {
        struct sigaction action {};
        action.sa_handler = caught.handler;
        sigaction(caught.number, &action, nullptr);
        sigaddset(&blocked, caught.number);
    }
    std::signal(SIGPIPE, SIG_IGN);
    sigprocmask(SIG_BLOCK, &blocked, &original);
    for (const Caught& caught : kSignals) {
        sigdelset(&original, caught.number);
    }
    return original;
}

Time Now() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

timespec ToTimespec(Time duration) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    timespec result{};
    result.tv_sec = seconds.count();
    result.tv_nsec = static_cast<decltype(result.tv_nsec)>((duration - seconds).count());
    return result;
}

/// The time of day, to the millisecond: "12:00:03.120".
std::string TimeOfDay() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() %
        1000;
    std::tm local{};
    localtime_r(&seconds, &local);
    std::array<char, 16> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%H:%M:%S", &local);
    std::snprintf(text.data() + length, text.size() - length, ".%03d",
                  static_cast<int>(milliseconds));
    return text.data();
}

}  // namespace

Server::Server(const Options& options)
    : options_(options),
      unit_(options.layout, options.timeFactor, static_cast<std::uint32_t>(options.seed)),
      engine_(unit_, faults_, options.unitDelay) {}

bool Server::OpenLine() {
    const std::optional<std::string> error =
        options_.device.empty() ? line_.OpenPseudoTerminal(options_.link, options_.baud)
                                : line_.OpenDevice(options_.device, options_.baud);
    if (error) {
        std::cerr << "zelvarsim: " << *error << std::endl;
        return false;
    }
    Print("ready " + line_.path() + "\n");
    return true;
}

int Server::Run() {
    // Before the link is made, so that no signal can end the program and leave the link behind.
    const sigset_t whileWaiting = CatchSignals();
    if (!OpenLine()) {
        return 1;
    }
    if (options_.trace) {
        StartTrace(Trace::Polls::kAll);
    }
    if (isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0) {
        PrintWelcome();
        const auto complete = [this](std::string_view line) {
            return CompleteLine(unit_.state(), line);
        };
        editor_ = std::make_unique<LineEditor>(complete, HistoryPath());
    }
    while (!done_ && endRequested == 0) {
        fd_set readable;
        FD_ZERO(&readable);
        int highest = -1;
        const auto watch = [&](int fd) {
            FD_SET(fd, &readable);
            highest = std::max(highest, fd);
        };
        if (consoleOpen_) {
            watch(STDIN_FILENO);
        }
        if (line_.IsOpen()) {
            watch(line_.fd());
        }
        timespec timeout{};
        const std::optional<Time> due = engine_.NextDue();
        if (due) {
            timeout = ToTimespec(std::max(*due - Now(), Time(0)));
        }
        const int ready = pselect(highest + 1, &readable, nullptr, nullptr,
                                  due ? &timeout : nullptr, &whileWaiting);
        if (terminalChanged != 0 && editor_) {
            terminalChanged = 0;
            editor_->Restore();
        }
        if (ready < 0) {
            continue;  // a signal; nothing else can fail here
        }
        // The console first: its commands apply from the next frame on.
        if (consoleOpen_ && FD_ISSET(STDIN_FILENO, &readable)) {
            ServeConsole();
        }
        if (line_.IsOpen() && FD_ISSET(line_.fd(), &readable)) {
            ServeLine();
        }
        const std::vector<std::uint8_t> bytes = engine_.TakeDue(Now());
        if (line_.IsOpen()) {
            line_.Write(bytes);
        }
    }
    editor_.reset();  // gives the terminal back
    line_.Close();
    return exitCode_;
}

void Server::ServeLine() {
    const std::optional<std::vector<std::uint8_t>> bytes = line_.Read();
    if (!bytes) {
        // Only a device can vanish; the server itself holds a pseudo-terminal open.
        std::cerr << "zelvarsim: the device is gone" << std::endl;
        exitCode_ = 1;
        done_ = true;
        return;
    }
    if (bytes->empty()) {
        return;
    }
    // A real line takes its own time; only a pseudo-terminal has to be slowed down.
    const int baud = line_.Baud();
    const bool paced = options_.pacing && line_.IsPseudoTerminal();
    engine_.SetBaud(paced ? (baud > 0 ? baud : options_.baud) : 0);
    engine_.Receive(*bytes, Now());
}

void Server::ServeConsole() {
    if (editor_) {
        const auto run = [this](const std::string& line) { RunLine(line); };
        if (editor_->ReadKeys(run) == LineEditor::Outcome::kEnded) {
            consoleOpen_ = false;
            done_ = true;
        }
        return;
    }
    std::array<char, kConsoleChunk> chunk{};
    const ssize_t count = read(STDIN_FILENO, chunk.data(), chunk.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
        return;
    }
    if (count <= 0) {
        consoleOpen_ = false;
        done_ = isatty(STDIN_FILENO) != 0;
        return;
    }
    input_.append(chunk.begin(), chunk.begin() + count);
    for (std::size_t end = input_.find('\n'); end != std::string::npos; end = input_.find('\n')) {
        const std::string line = input_.substr(0, end);
        input_.erase(0, end + 1);
        RunLine(line);
    }
    if (input_.size() > kLongestLine) {
        input_.clear();
    }
}

void Server::RunLine(const std::string& line) {
    ConsoleContext context{unit_, faults_, Now(), line_.IsOpen() ? line_.Baud() : 0};
    const ConsoleResult result = RunConsoleLine(context, line);
    if (!result.text.empty() && result.action != ConsoleAction::kReconnect) {
        Print(result.text + "\n");
    }
    Act(result.action);
}

void Server::Act(ConsoleAction action) {
    switch (action) {
        case ConsoleAction::kNone:
            break;
        case ConsoleAction::kTraceOn:
            StartTrace(Trace::Polls::kWithoutEmpty);
            break;
        case ConsoleAction::kTraceAll:
            StartTrace(Trace::Polls::kAll);
            break;
        case ConsoleAction::kTraceOff:
            engine_.SetTrace(nullptr);
            break;
        case ConsoleAction::kHangUp:
            line_.Close();
            engine_.Reset();
            break;
        case ConsoleAction::kReconnect:
            engine_.Reset();
            Print(OpenLine() ? "ok\n" : "error cannot open the line\n");
            break;
        case ConsoleAction::kQuit:
            done_ = true;
            break;
    }
}

void Server::StartTrace(Trace::Polls polls) {
    engine_.SetTrace(
        [this, trace = Trace(polls)](bool sent, std::span<const std::uint8_t> bytes) mutable {
            if (const std::string lines = trace.Frame(TimeOfDay(), sent, bytes); !lines.empty()) {
                Print(lines);
            }
        });
}

void Server::PrintWelcome() {
    if (line_.IsPseudoTerminal()) {
        Print("In another terminal: ZELVARCONFIG_PORTS=" + line_.path() + " zelvarconfig\n");
    }
    Print("\"help\" lists the commands, \"quit\" ends.\n");
}

void Server::Print(const std::string& text) {
    if (editor_) {
        editor_->Print(text);
    } else {
        std::cout << text << std::flush;
    }
}

}  // namespace zelvar::sim
