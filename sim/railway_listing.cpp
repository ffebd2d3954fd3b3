// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <sstream>

#include "state_listing.h"

namespace zelvar::sim {

namespace {

/// Millimetres are shown, no more.
std::string Tenths(double value) {
    std::ostringstream out;
    out << std::fixed << std::setprecision(1) << std::abs(value);
    return out.str();
}

}  // namespace

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
