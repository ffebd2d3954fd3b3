// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <optional>

#include "sim/railway/track_plan.h"

namespace zelvar::sim {

/// Points thrown (or not) by device; one that nobody has moved stands straight.
using PointPositions = std::map<int, bool>;

/// A section with the way a train stands in it: `along` when its nose points to the section's
/// front.
struct Footing {
    std::size_t section = 0;
    bool along = true;

    bool operator==(const Footing&) const = default;
};

/// What lies behind the front or the back end of a section; nothing behind a dead end. `along` is
/// meant for a train that leaves by that end nose first.
std::optional<Footing> Beyond(const TrackPlan& plan, std::size_t section, bool byFront,
                              const PointPositions& points);

/// The track under a train, from its nose to its tail. What has passed a point keeps its way,
/// wherever the point is moved afterwards.
class TrainPath {
  public:
    /// The nose stands `position` centimetres from the section's back and points to its front; the
    /// tail lies behind it. At a dead end that is too near it sticks out.
    TrainPath(const TrackPlan& plan, std::size_t section, double position, double length,
              const PointPositions& points);

    /// Moves nose first, or tail first when negative. The centimetres moved: fewer than asked for
    /// at a dead end.
    double Move(const TrackPlan& plan, double distance, const PointPositions& points);

    /// Nose first.
    const std::deque<Footing>& sections() const { return sections_; }
    /// Of the nose, centimetres from the back of its section.
    double Position(const TrackPlan& plan) const;

  private:
    /// Lays track under the tail until it covers `missing` centimetres more; what is left of them
    /// in front of a dead end.
    double ExtendTail(const TrackPlan& plan, double missing, const PointPositions& points);
    /// Centimetres between the tail and the far end of its section; negative: it sticks out.
    double TailGap(const TrackPlan& plan) const;

    std::deque<Footing> sections_;
    double nose_ = 0;  // centimetres from the end by which the nose came in
    double length_ = 0;
};

}  // namespace zelvar::sim
