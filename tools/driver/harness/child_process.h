// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QProcess>

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "harness/pseudo_terminal.h"
#include "harness/waiting.h"

namespace zelvar::e2e {

/// Environment variables that differ from those of the starting program; one without a value is
/// removed.
using Variables = std::map<std::string, std::optional<std::string>>;

/// The next line of a pipe or socket, without its end.
/// @return nothing when none comes in time or the other end has closed
std::optional<std::string> ReceiveLine(QIODevice& from, Milliseconds limit = kLimit);

/// How a program starts where it differs from the one that starts it.
struct StartOptions {
    Variables environment = {};
    std::string folder = {};
    /// In place of pipes. It must outlive the program.
    const PseudoTerminal* terminal = nullptr;
};

/// A program started by this one, which it does not outlive.
class ChildProcess {
  public:
    /// @param arguments the program's path first
    explicit ChildProcess(const std::vector<std::string>& arguments,
                          const StartOptions& options = {});
    ~ChildProcess() { Kill(); }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// A line to the program's standard input. @return false when the program has ended
    bool Send(const std::string& line);
    void CloseInput();
    /// The next line of the program's standard output.
    std::optional<std::string> Receive(Milliseconds limit = kLimit);

    pid_t Id() const { return static_cast<pid_t>(process_.processId()); }
    bool IsRunning() { return !WaitForExit(Milliseconds(0)).has_value(); }
    /// @return the exit status, 128 + N when signal N ended it, nothing while it still runs
    std::optional<int> WaitForExit(Milliseconds limit = kLimit);
    void Kill();

    /// Processor time used so far.
    Milliseconds CpuTime() const;

    /// Everything that the program has written to its standard error.
    std::string Errors();
    /// Whether the program runs, and what it wrote to its standard error.
    std::string Describe();

  private:
    QProcess process_;
    QByteArray errors_;
};

}  // namespace zelvar::e2e
