// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "sim/explain/explain.h"

namespace zelvar::sim {

/// Turns the frames on the line into lines to print.
class Trace {
  public:
    enum class Polls {
        kWithoutEmpty,  // no poll whose answer is empty, unless stop, fault or hold have changed
        kAll,
    };

    explicit Trace(Polls polls) : polls_(polls) {}

    /// The lines for a frame, each ended by a line feed; a poll waits for its answer. `sent`: a
    /// reply.
    std::string Frame(std::string_view time, bool sent, std::span<const std::uint8_t> bytes);

  private:
    Polls polls_;
    Explainer explainer_;
    std::string waiting_;  // the line of a poll
    int commandState_ = 0;
    int shownState_ = 0;  // the header bits stop, fault and hold of what was shown last
};

}  // namespace zelvar::sim
