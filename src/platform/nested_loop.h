// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar {

/// Marks a nested event loop as turning, for as long as it lives. A handler is still running then:
/// timers drop their ticks, and a slider delays its report until the handler has ended. Code that
/// lets the event loop turn inside a handler holds one of these.
class NestedLoop {
  public:
    NestedLoop() { ++depth_; }
    ~NestedLoop() { --depth_; }
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;

    static bool IsTurning() { return depth_ > 0; }

  private:
    /// All of it happens on the interface thread.
    static inline int depth_ = 0;
};

}  // namespace zelvar
