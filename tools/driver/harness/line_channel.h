// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "harness/waiting.h"

namespace zelvar::e2e {

/// Lines of text over a pipe or socket. It owns what it reads from and writes to.
class LineChannel {
  public:
    LineChannel() = default;
    /// @param in,out file descriptors; they may be the same one
    LineChannel(int in, int out) : in_(in), out_(out) {}
    ~LineChannel() { Close(); }
    LineChannel(LineChannel&& other) noexcept;
    LineChannel& operator=(LineChannel&& other) noexcept;

    /// @return false when the other end is gone
    bool Send(const std::string& line) const;
    /// @return nothing when no line comes in time or the other end is gone
    std::optional<std::string> Receive(Milliseconds limit = kLimit);
    void Close();

  private:
    int in_ = -1;
    int out_ = -1;
    std::string received_;
};

}  // namespace zelvar::e2e
