// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "link/link.h"

namespace zelvar {

/// The interval of the poll timer in milliseconds.
constexpr int kPollInterval = 20;

/// What a feedback query gives when no input is wanted.
constexpr int kNoFeedbackWanted = -1;

/// Asks the central unit for news with every tick of the poll timer.
class Poller {
  public:
    /// Gives the feedback input to ask for with this tick, or `kNoFeedbackWanted`.
    using FeedbackQuery = std::function<int()>;

    Poller(Link& link, const SerialPort& port, Timer& timer)
        : link_(link), port_(port), timer_(timer) {}

    void SetFeedbackQuery(FeedbackQuery query) { query_ = std::move(query); }

    void Timer1_Timer();

  private:
    Link& link_;
    const SerialPort& port_;
    Timer& timer_;
    FeedbackQuery query_;
};

}  // namespace zelvar
