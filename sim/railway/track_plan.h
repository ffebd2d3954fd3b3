// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zelvar::sim {

/// Where an end of a section leads: to one section, or to one of two by the position of a point.
struct TrackEnd {
    std::vector<std::size_t> sections;  // by index: straight on, and where the point thrown leads
    std::optional<int> point;           // device 0..511; only with two sections
};

/// A piece of track between two joints, fed by one block. Forward is from its back to its front.
struct TrackSection {
    std::string name;
    int block = 0;                // 0..255
    double length = 0;            // centimetres
    std::optional<int> feedback;  // the input 0..2047 of its occupancy detector
    TrackEnd front;
    TrackEnd back;  // a point that is set against a train lets it pass
};

enum class TrainControl { kAnalog, kDcc, kMcc };

struct Train {
    std::string name;
    TrainControl control = TrainControl::kAnalog;  // analog: by the block under its engine
    int address = 0;                               // of its DCC or MCC decoder
    bool longAddress = false;                      // DCC only
    std::size_t section = 0;                       // of its nose at the start, by index
    double position = 0;      // centimetres of its front from the section's back
    double length = 0;        // centimetres
    double topSpeed = 0;      // centimetres a second at the highest speed step
    double acceleration = 0;  // centimetres a second, each second; 0 follows at once
};

/// The railway on the table; empty when a layout has modules only.
struct TrackPlan {
    std::vector<TrackSection> sections;
    std::vector<Train> trains;
};

}  // namespace zelvar::sim
