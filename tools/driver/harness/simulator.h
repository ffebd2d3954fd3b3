// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "harness/child_process.h"

namespace zelvar::e2e {

/// The simulated central unit on a pseudo-terminal.
class Simulator {
  public:
    /// Whether bytes take the time that they take on a real line.
    enum class Line { kImmediate, kPaced };

    /// @param options command-line options, such as "--layout", "none"; without one the modules are
    /// those of tests/layouts/mixed.toml
    explicit Simulator(const TempFolder& folder, const std::vector<std::string>& options = {},
                       Line line = Line::kImmediate);

    /// The device that the program can open.
    const std::string& Device() const { return device_; }

    /// One console command. @return the lines of its answer, the "ok" line last
    /// @throws std::runtime_error when the answer is an error or none comes
    std::vector<std::string> Do(const std::string& command);

    /// The value of a name in the unit's dump; empty when it is not there.
    std::string Value(const std::string& name);
    /// The same as a number; 0 when it is not there.
    int Count(const std::string& name);

    /// The frames since tracing was turned on, such as "rx 28 D8", oldest first.
    const std::vector<std::string>& Trace();

    ChildProcess& Process() { return process_; }

  private:
    std::string device_;
    ChildProcess process_;
    std::vector<std::string> trace_;
};

}  // namespace zelvar::e2e
