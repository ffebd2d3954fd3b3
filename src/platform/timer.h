// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar {

/// A repeating timer whose ticks arrive on the interface thread, never inside another handler.
class Timer {
  public:
    virtual ~Timer() = default;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool IsEnabled() const = 0;
};

}  // namespace zelvar
