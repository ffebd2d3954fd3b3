// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <thread>

#include "harness/pseudo_terminal.h"

namespace zelvar::bench {

/// A line whose other end answers every frame with an empty reply at once.
class AnsweringLine {
  public:
    AnsweringLine();
    ~AnsweringLine();
    AnsweringLine(const AnsweringLine&) = delete;
    AnsweringLine& operator=(const AnsweringLine&) = delete;

    /// The path of the end that a program opens.
    const std::string& Device() const { return terminal_.Device(); }

  private:
    void Answer() const;

    e2e::PseudoTerminal terminal_;
    int stop_[2] = {-1, -1};
    std::thread answering_;
};

}  // namespace zelvar::bench
