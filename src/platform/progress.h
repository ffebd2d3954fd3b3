// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelvar {

/// Shows how far a long handler has come. What it shows is painted at once and never lets other
/// user input in.
class Progress {
  public:
    virtual ~Progress() = default;

    /// @param caption what is going on, for the user
    /// @param steps how many calls of `Step` to expect, at least 1
    virtual void Begin(const std::string& caption, int steps) = 0;
    virtual void Step() = 0;
    virtual void End() = 0;

    /// Offers the user a way out of a wait that may never end, until the next `Begin` or `End`.
    virtual void OfferCancel() = 0;

    /// Lets the offered way out react, and nothing else. @return true once it has been taken.
    virtual bool IsCancelled() = 0;
};

/// Begins and ends a progress display with its scope.
class ProgressScope {
  public:
    ProgressScope(Progress& progress, const std::string& caption, int steps) : progress_(progress) {
        progress_.Begin(caption, steps);
    }
    ~ProgressScope() { progress_.End(); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

  private:
    Progress& progress_;
};

}  // namespace zelvar
