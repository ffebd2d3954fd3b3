// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar::tour {

/// Keeps two tours from running at once: they would open devices of one name, and Qt locks a serial
/// port by its name for the whole computer.
class TourLock {
  public:
    /// Waits until this user's other tours have ended.
    /// @throws std::runtime_error when another user's tour is running
    TourLock();
    ~TourLock();
    TourLock(const TourLock&) = delete;
    TourLock& operator=(const TourLock&) = delete;

  private:
    int file_;
};

}  // namespace zelvar::tour
