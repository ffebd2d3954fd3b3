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

/// Variables of the environment beside those of the starting program; one without a value is taken
/// away.
using Variables = std::map<std::string, std::optional<std::string>>;

/// A program started by this one, which it does not outlive.
class ChildProcess {
  public:
    /// @param arguments the program's path first
    /// @param errorFile takes what the program writes to its standard error
    /// @param folder where the program runs; as the starting one does when it is empty
    ChildProcess(const std::vector<std::string>& arguments, const Variables& environment,
                 const std::string& errorFile, const std::string& folder = {});
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
