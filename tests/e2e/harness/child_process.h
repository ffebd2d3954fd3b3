// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "harness/line_channel.h"
#include "harness/waiting.h"

namespace zelvar::e2e {

/// A program started by the test; it does not outlive the test.
class ChildProcess {
  public:
    /// @param arguments the program's path first
    /// @param environment variables beside those of the test itself
    /// @param errorFile takes what the program writes to its standard error
    ChildProcess(const std::vector<std::string>& arguments,
                 const std::map<std::string, std::string>& environment,
                 const std::string& errorFile);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// The program's standard input and output.
    LineChannel& Console() { return console_; }

    bool IsRunning();
    /// @return the exit status, 128 + N when signal N ended it, nothing while it still runs
    std::optional<int> WaitForExit(Milliseconds limit = kLimit);
    void Kill();

    /// Time on a processor so far.
    Milliseconds CpuTime() const;

    /// How it stands with the program and what it wrote to its standard error.
    std::string Describe();

  private:
    std::string name_;
    std::string errorFile_;
    pid_t pid_ = -1;
    std::optional<int> status_;
    LineChannel console_;
};

}  // namespace zelvar::e2e
