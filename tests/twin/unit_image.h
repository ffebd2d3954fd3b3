// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "sim/console/state_walk.h"

namespace zelvar::twin {

/// What changed in the unit's state, by name: "traction.37.permanent.4", "points.9.active.5.time",
/// "configuration.active", "block.200.target" (below 0 in reverse), "dcc.long.1000.functions" (bit
/// n is Fn), "mcc.7.half-steps", "link.3.4" (1 inverted), "point.300", "aspect.2.10", "hfi" and so
/// on.
using Changes = std::map<std::string, int>;

/// The value of something that is not there any more, by its name alone: "link.3.4", "mcc.7".
inline constexpr int kGone = -1000;

/// The unit's state at one moment.
class UnitImage : private sim::StateView {
  public:
    explicit UnitImage(const sim::UnitState& state);

    /// Everything that is different now.
    Changes ChangesTo(const sim::UnitState& state) const;

  private:
    class Comparison;

    struct Entry {
        sim::StateName name;
        std::size_t start;  // of its numbers
    };

    void Open(std::string_view, const sim::StateName& name) override {
        entries_.push_back({name, numbers_.size()});
    }
    void Take(const sim::StateValue& value) override {
        numbers_.push_back(static_cast<int>(value.number));
    }

    std::vector<Entry> entries_;
    std::vector<int> numbers_;
};

}  // namespace zelvar::twin
