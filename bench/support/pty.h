// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <thread>

namespace zelvar::bench {

/// A pseudo-terminal in raw mode whose other end answers every frame with an empty reply at once.
class AnsweringPty {
  public:
    AnsweringPty();
    ~AnsweringPty();
    AnsweringPty(const AnsweringPty&) = delete;
    AnsweringPty& operator=(const AnsweringPty&) = delete;

    /// The path of the end that a program opens.
    const std::string& Path() const { return path_; }

  private:
    void Answer() const;

    int master_ = -1;
    int stop_[2] = {-1, -1};
    std::string path_;
    std::thread answering_;
};

}  // namespace zelvar::bench
