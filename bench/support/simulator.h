// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace zelvar::bench {

/// The simulated central unit in a process of its own, which ends with this object.
class Simulator {
  public:
    Simulator(const std::string& program, const std::vector<std::string>& options);
    ~Simulator();
    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;

    /// The path of the end that a program opens.
    const std::string& Path() const { return path_; }

  private:
    pid_t process_ = -1;
    std::string path_;
};

/// Starts a program with its own standard output hidden. @return its process
pid_t Start(const std::string& program, const std::vector<std::string>& arguments, int output);

}  // namespace zelvar::bench
