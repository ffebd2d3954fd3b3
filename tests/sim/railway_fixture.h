// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "sim/unit/reports.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {

/// A loop of three sections, each in a block and with a detector of its own, forward round it:
///
///     west (block 1, input 11) -> north (2, 12) or siding (3, 13) by point 4 -> east (5, 15) ->
///     west
///
/// and, apart from it, a straight with a dead end at both ends: stub (9, no detector).
inline TrackPlan LoopPlan() {
    TrackPlan plan;
    plan.sections = {
        {"west", 1, 100, 11, {{1, 2}, 4}, {{3}, {}}},
        {"north", 2, 100, 12, {{3}, {}}, {{0}, {}}},
        {"siding", 3, 60, 13, {{3}, {}}, {{0}, {}}},
        {"east", 5, 100, 15, {{0}, {}}, {{1, 2}, 6}},
        {"stub", 9, 80, std::nullopt, {{}, {}}, {{}, {}}},
    };
    return plan;
}

inline constexpr std::size_t kWest = 0;
inline constexpr std::size_t kNorth = 1;
inline constexpr std::size_t kSiding = 2;
inline constexpr std::size_t kEast = 3;
inline constexpr std::size_t kStub = 4;

/// An engine of 20 cm with its nose in the middle of a section of 100 cm. At full speed it goes
/// 63 cm a second: one for each speed step of its block.
inline Train AnalogTrain(const std::string& name, std::size_t section, double position = 50) {
    return {name, TrainControl::kAnalog, 0, false, section, position, 20, 63, 10};
}
/// At full speed 56 cm a second, two for each of 28 steps; it gains 20 cm/s each second.
inline Train DccTrain(const std::string& name, int address, std::size_t section,
                      double position = 50) {
    return {name, TrainControl::kDcc, address, false, section, position, 20, 56, 20};
}
/// At full speed 30 cm a second, one for each half step.
inline Train MccTrain(const std::string& name, int address, std::size_t section,
                      double position = 50) {
    return {name, TrainControl::kMcc, address, false, section, position, 20, 30, 10};
}

inline Layout LayoutWith(const std::vector<Train>& trains, TrackPlan plan = LoopPlan()) {
    Layout layout = EmptyLayout();
    layout.track = std::move(plan);
    layout.track.trains = trains;
    return layout;
}

/// A unit with a railway; each test chooses the trains.
class RailwayFixture : public UnitFixture {
  protected:
    void Build(const std::vector<Train>& trains, TrackPlan plan = LoopPlan()) {
        unit_ = CentralUnit(LayoutWith(trains, std::move(plan)));
        unit_.Advance(now_);
    }
    /// One of the values of a "name=key:value,key:value" line; "none" without it.
    std::string Part(const std::string& name, const std::string& key) {
        const std::string line = "," + Listed(name);
        const std::size_t at = line.find("," + key + ":");
        if (at == std::string::npos) {
            return "none";
        }
        const std::size_t from = at + key.size() + 2;
        return line.substr(from, line.find(',', from) - from);
    }
    std::string Where(const std::string& train) {
        return Part("train." + train, "section") + " " + Part("train." + train, "position");
    }
    /// Centimetres a second and the way, such as "12.0 forward".
    std::string Speed(const std::string& train) {
        return Part("train." + train, "speed") + " " + Part("train." + train, "direction");
    }
    bool Occupied(const std::string& section) {
        return Part("section." + section, "occupied") == "1";
    }
    /// A speed of a block below 128, at once.
    void Drive(int block, int speed, bool forward = true) {
        Ask({34, block, speed + (forward ? 64 : 0)});
    }
    /// The blocks of the loop run alike.
    void DriveLoop(int speed, bool forward = true) {
        for (const int block : {1, 2, 3, 5}) {
            Drive(block, speed, forward);
        }
    }
    /// The reports that came of tracks: no block speeds.
    std::vector<Payload> TrackReports() {
        std::vector<Payload> reports = PollAll();
        reports.erase(std::remove_if(reports.begin(), reports.end(),
                                     [](const Payload& report) { return report.size() == 3; }),
                      reports.end());
        return reports;
    }
};

}  // namespace zelvar::sim
