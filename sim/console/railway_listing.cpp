// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/railway_listing.h"

#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <sstream>

#include "sim/console/state_listing.h"
#include "sim/protocol/names.h"

namespace zelvar::sim {

namespace {

/// Millimetres are shown, no more.
std::string Tenths(double value) {
    std::ostringstream out;
    out << std::fixed << std::setprecision(1) << std::abs(value);
    return out.str();
}

std::string ControlName(const Train& train) {
    if (train.control == TrainControl::kAnalog) {
        return "analog";
    }
    return (train.control == TrainControl::kDcc ? "DCC " : "MCC ") + std::to_string(train.address) +
           (train.longAddress ? " (long)" : "");
}

std::string NamesIn(const TrackPlan& plan, const std::vector<std::size_t>& trains) {
    std::vector<std::string> names;
    names.reserve(trains.size());
    for (const std::size_t train : trains) {
        names.push_back(plan.trains[train].name);
    }
    return Joined(names, "");
}

}  // namespace

TableSection TrainTable(const UnitState& state) {
    TableSection table{
        "Trains", {"train", "control", "section", "nose at", "speed", "direction", "block"}, {}};
    const TrackPlan& plan = state.railway.plan();
    for (const Railway::RunningTrain& train : state.railway.trains()) {
        const TrackSection& section = plan.sections[train.path.sections().front().section];
        table.rows.push_back(
            {train.described.name, ControlName(train.described), section.name,
             Tenths(train.path.Position(plan)) + " cm", Tenths(train.speed) + " cm/s",
             std::string(DirectionName(!train.backwards)), std::to_string(section.block)});
    }
    return table;
}

TableSection TrackTable(const UnitState& state) {
    TableSection table{"Track", {"section", "block", "length", "detector", "trains"}, {}};
    const TrackPlan& plan = state.railway.plan();
    for (std::size_t index = 0; index < plan.sections.size(); ++index) {
        const TrackSection& section = plan.sections[index];
        table.rows.push_back({section.name, std::to_string(section.block),
                              Tenths(section.length) + " cm",
                              section.feedback ? std::to_string(*section.feedback) : "",
                              NamesIn(plan, state.railway.occupants()[index])});
    }
    return table;
}

void ListRailway(std::ostream& out, const UnitState& state) {
    const Railway& railway = state.railway;
    const TrackPlan& plan = railway.plan();
    for (const Railway::RunningTrain& train : railway.trains()) {
        const TrackSection& section = plan.sections[train.path.sections().front().section];
        out << "train." << train.described.name << "=section:" << section.name
            << ",position:" << Tenths(train.path.Position(plan)) << ",speed:" << Tenths(train.speed)
            << ",direction:" << (train.backwards ? "reverse" : "forward")
            << ",block:" << section.block << '\n';
    }
    for (std::size_t index = 0; index < plan.sections.size(); ++index) {
        const TrackSection& section = plan.sections[index];
        const std::vector<std::size_t>& trains = railway.occupants()[index];
        out << "section." << section.name << "=occupied:" << !trains.empty()
            << ",block:" << section.block;
        if (section.feedback) {
            out << ",feedback:" << *section.feedback;
        }
        out << ",trains:";
        const char* separator = "";
        for (const std::size_t train : trains) {
            out << separator << plan.trains[train].name;
            separator = "+";
        }
        out << '\n';
    }
}

}  // namespace zelvar::sim
