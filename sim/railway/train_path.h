// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <optional>

#include "sim/railway/track_plan.h"

namespace zelvar::sim {

/// Whether each point is thrown, by device. A point that is not listed is straight.
using PointPositions = std::map<int, bool>;

/// A section and how a train stands in it: `along` if its nose points to the section's front.
struct SectionUnderTrain {
    std::size_t section = 0;
    bool along = true;

    bool operator==(const SectionUnderTrain&) const = default;
};

/// The section beyond the front or the back end of a section; none beyond a dead end. `along` is
/// that of a train that leaves by that end nose first.
std::optional<SectionUnderTrain> Beyond(const TrackPlan& plan, std::size_t section, bool byFront,
                                        const PointPositions& points);

/// The track under a train, from its nose to its tail. A point that moves under the train does not
/// change it.
class TrainPath {
  public:
    /// The nose stands `position` centimetres from the section's back and points to its front. A
    /// tail for which the track is too short sticks out.
    TrainPath(const TrackPlan& plan, std::size_t section, double position, double length,
              const PointPositions& points);

    /// Moves nose first, or tail first if `distance` is negative. Returns the centimetres moved:
    /// fewer at a dead end.
    double Move(const TrackPlan& plan, double distance, const PointPositions& points);

    /// Nose first.
    const std::deque<SectionUnderTrain>& sections() const { return sections_; }
    /// Of the nose, centimetres from the back of its section.
    double Position(const TrackPlan& plan) const;

  private:
    /// Adds track under the tail for `missing` more centimetres. Returns how many a dead end leaves
    /// uncovered.
    double ExtendTail(const TrackPlan& plan, double missing, const PointPositions& points);
    /// Centimetres between the tail and the far end of its section; negative: it sticks out.
    double TailGap(const TrackPlan& plan) const;

    std::deque<SectionUnderTrain> sections_;
    double nose_ = 0;  // centimetres from the end by which the nose came in
    double length_ = 0;
};

}  // namespace zelvar::sim
