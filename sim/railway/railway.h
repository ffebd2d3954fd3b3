// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "sim/railway/drive.h"
#include "sim/railway/track_plan.h"
#include "sim/railway/train_path.h"

namespace zelvar::sim {

/// Simulated time advances in fixed steps, whatever the times of the calls: the same run each time.
inline constexpr std::chrono::milliseconds kRailwayStep{10};

/// Engines of a seeded railway are up to this much faster or slower than described.
inline constexpr double kEngineDifference = 0.03;

/// Centimetres; a shorter section is as long as this.
inline constexpr double kShortestSection = 1;

/// Detectors and blocks that changed: the number of each and whether it is set now.
struct TrackChanges {
    std::vector<std::pair<int, bool>> inputs;  // feedback inputs
    std::vector<std::pair<int, bool>> shared;  // blocks with two trains or more
};

/// The trains on their track.
class Railway {
  public:
    struct RunningTrain {
        Train described;  // its top speed with the engine's own difference
        TrainPath path;
        double speed = 0;        // centimetres a second, nose first is positive
        bool resuming = false;   // after a stop: it gathers speed by its mass
        bool backwards = false;  // the direction of its last speed
    };

    /// Without a seed (0) all engines run as described.
    explicit Railway(TrackPlan plan, std::uint32_t seed = 0);

    /// One step of `kRailwayStep` with power on the track.
    void Step(const Drive& drive, const PointPositions& points);
    /// Every train stops at once; those with a speed gather it again from the next step on.
    void Halt();
    /// No train moves or will move until the next command.
    bool Resting(const Drive& drive) const;

    /// Puts a train elsewhere, standing, with its nose to the section's front. `position` is 0 to
    /// the section's length.
    void Place(std::size_t train, std::size_t section, double position,
               const PointPositions& points);

    /// The changes since the last call. How the detectors are at the start is no change.
    TrackChanges TakeChanges();
    /// Trains that share a block now count as a change again.
    void ForgetShared() { reportedShared_.reset(); }

    const TrackPlan& plan() const { return plan_; }
    const std::vector<RunningTrain>& trains() const { return trains_; }
    /// Trains over each section, by index.
    const std::vector<std::vector<std::size_t>>& occupants() const { return occupants_; }
    const std::bitset<kFeedbackInputs>& detected() const { return detected_; }

    std::optional<std::size_t> FindTrain(std::string_view name) const;
    std::optional<std::size_t> FindSection(std::string_view name) const;

  private:
    /// The requested speed in centimetres a second; nose first is positive.
    double WantedSpeed(const RunningTrain& train, const Drive& drive) const;
    void Run(RunningTrain& train, const Drive& drive, const PointPositions& points);
    void Observe();

    TrackPlan plan_;
    std::vector<RunningTrain> trains_;
    std::vector<std::vector<std::size_t>> occupants_;
    std::bitset<kFeedbackInputs> detected_;
    std::bitset<kFeedbackInputs> reportedDetected_;
    std::bitset<kBlocks> shared_;
    std::bitset<kBlocks> reportedShared_;
};

}  // namespace zelvar::sim
