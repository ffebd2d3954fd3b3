// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "sim/unit/unit_state.h"

namespace zelvar::twin {

/// What has become of the unit's state, by name: "traction.37.permanent.4",
/// "points.9.active.5.time", "configuration.active", "block.200.target" (below 0 in reverse),
/// "dcc.long.1000.functions" (bit n is Fn), "mcc.7.half-steps", "link.3.4" (1 inverted),
/// "point.300", "aspect.2.10", "hfi" and so on.
using Changes = std::map<std::string, int>;

/// The value of something that is there no more.
inline constexpr int kGone = -1000;

/// The unit's state at one moment.
class UnitImage {
  public:
    explicit UnitImage(const sim::UnitState& state);

    /// Everything that is not as it was.
    Changes ChangesTo(const sim::UnitState& state) const;

  private:
    std::vector<int> fixed_;
    Changes variable_;
};

}  // namespace zelvar::twin
