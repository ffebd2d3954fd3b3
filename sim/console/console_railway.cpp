// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <cmath>

#include "sim/console/console.h"
#include "sim/text/number.h"
#include "sim/unit/railway_unit.h"

namespace zelvar::sim {

namespace {

using std::chrono::milliseconds;

// As long as one step catches up with, so that nothing of a run is dropped.
constexpr int kMaxRunMs = static_cast<int>(milliseconds(kMaxCatchUp) / milliseconds(1));
constexpr int kMaxPosition = 10'000;  // centimetres: no section is longer
constexpr Word kPositions[] = {{"straight", 0}, {"thrown", 1}};

std::vector<std::string> TrainNames(const UnitState& state) {
    std::vector<std::string> names;
    for (const Train& train : state.layout.track.trains) {
        names.push_back(train.name);
    }
    return names;
}

std::vector<std::string> SectionNames(const UnitState& state) {
    std::vector<std::string> names;
    for (const TrackSection& section : state.layout.track.sections) {
        names.push_back(section.name);
    }
    return names;
}

ConsoleResult Place(ConsoleContext& context, const Values& values) {
    UnitState& state = context.unit.state();
    const double length = state.railway.plan().sections[values[1]].length;
    // In the middle, or with its nose at the end when it is longer than the section.
    const double trainLength = state.railway.trains()[values[0]].described.length;
    double position = std::min(length, (length + trainLength) / 2);
    if (values.size() > 2) {
        position = values[2];
    }
    if (position > length) {
        return Error("CM: expected " + RangeText(0, static_cast<int>(std::floor(length))) +
                     " in this section, found " + std::to_string(values[2]));
    }
    state.railway.Place(values[0], values[1], position, state.accessories.points);
    context.unit.Advance(context.now);
    return {};
}

ConsoleResult Point(ConsoleContext& context, const Values& values) {
    context.unit.state().accessories.points[values[0]] = values[1] != 0;
    return {};
}

ConsoleResult TimeFactor(ConsoleContext& context, const Values& values) {
    context.unit.SetTimeFactor(values[0], context.now);
    return {};
}

ConsoleResult Run(ConsoleContext& context, const Values& values) {
    // Otherwise the clock would add its own time, and no run would be like another.
    if (context.unit.timeFactor() != 0) {
        return Error("expected \"time-factor 0\" first");
    }
    context.unit.Run(milliseconds(values[0]), context.now);
    return {};
}

constexpr ConsoleCommand kCommands[] = {
    {"place",
     {Name("TRAIN", &TrainNames), Name("SECTION", &SectionNames),
      Optional(Number("CM", 0, kMaxPosition))},
     &Place,
     "Puts TRAIN into SECTION, stopped, its nose CM centimetres from the section's back or in the "
     "middle.",
     "place Goods train platform-1 120"},
    {"point",
     {Number("D", 0, 511), Choice(kPositions)},
     &Point,
     "Moves point D.",
     "point 1 thrown"},
    {"time-factor",
     {Number("N", 0, kMaxTimeFactor)},
     &TimeFactor,
     "Lets N simulated seconds pass in each second; 0 stops simulated time.",
     "time-factor 5"},
    {"run",
     {Number("MS", 1, kMaxRunMs)},
     &Run,
     "Lets MS simulated milliseconds pass at once, when the time factor is 0.",
     "run 20000"},
};

}  // namespace

ConsoleGroup RailwayConsoleCommands() {
    return {"Trains and time", kCommands};
}

}  // namespace zelvar::sim
