// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "sim/console/console.h"
#include "sim/layouts/table_reader.h"
#include "sim/protocol/names.h"
#include "sim/unit/railway_unit.h"

namespace zelvar::sim {

namespace {

constexpr int kMostPoint = 511;
// What one look catches up with: nothing of a run is dropped.
constexpr int kMostRunMs =
    static_cast<int>(std::chrono::milliseconds(kMostCatchUp) / std::chrono::milliseconds(1));

/// Takes a name off the front of the arguments; names can have blanks, and the longest one counts.
template <typename Find>
std::optional<std::size_t> TakeName(ConsoleArguments& arguments, Find find) {
    std::optional<std::size_t> found;
    std::size_t taken = 0;
    std::string name;
    for (std::size_t count = 1; count <= arguments.size(); ++count) {
        name.append(count == 1 ? "" : " ").append(arguments[count - 1]);
        if (const std::optional<std::size_t> index = find(name)) {
            found = index;
            taken = count;
        }
    }
    arguments = arguments.subspan(taken);
    return found;
}

constexpr std::size_t kMostNames = 8;  // of those that an error tells; a line has no room for all

/// "unknown train red: Railcar or Tram expected"
template <typename Item, typename Name>
ConsoleResult UnknownName(const std::string& what, const std::string& given,
                          const std::vector<Item>& items, Name name) {
    const std::string unknown = "unknown " + what + " " + given + ": ";
    if (items.empty()) {
        return Error(unknown + "the layout has none");
    }
    std::vector<std::string> known;
    for (std::size_t index = 0; index < std::min(items.size(), kMostNames); ++index) {
        known.push_back(name(items[index]));
    }
    if (items.size() > kMostNames) {
        return Error(unknown + Joined(known) + ", ... expected");
    }
    return Error(unknown + JoinedWith(known, "or") + " expected");
}

ConsoleResult Place(ConsoleContext& context, ConsoleArguments arguments) {
    UnitState& state = context.unit.state();
    const Railway& railway = state.railway;
    const auto train =
        TakeName(arguments, [&](const std::string& name) { return railway.FindTrain(name); });
    if (!train) {
        return UnknownName("train", arguments[0], railway.trains(),
                           [](const auto& known) { return known.described.name; });
    }
    if (arguments.empty()) {
        return Error("a section expected");
    }
    const auto section =
        TakeName(arguments, [&](const std::string& name) { return railway.FindSection(name); });
    if (!section) {
        return UnknownName("section", arguments[0], railway.plan().sections,
                           [](const auto& known) { return known.name; });
    }
    if (arguments.size() > 1) {
        return Error("one number expected behind the section");
    }
    const double length = state.railway.plan().sections[*section].length;
    // In the middle, or with its nose at the end when it is longer than the section.
    const double trainLength = state.railway.trains()[*train].described.length;
    double position = std::min(length, (length + trainLength) / 2);
    if (!arguments.empty()) {
        const int most = static_cast<int>(std::floor(length));
        const std::optional<int> given = ParseInt(arguments[0], 0, most);
        if (!given) {
            return RangeError("CM", 0, most);
        }
        position = *given;
    }
    state.railway.Place(*train, *section, position, state.accessories.points);
    context.unit.Advance(context.now);
    return Ok();
}

ConsoleResult Point(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> device = ParseInt(arguments[0], 0, kMostPoint);
    const bool thrown = arguments[1] == "thrown";
    if (!device) {
        return RangeError("D", 0, kMostPoint);
    }
    if (!thrown && arguments[1] != "straight") {
        return Error("straight or thrown expected");
    }
    context.unit.state().accessories.points[*device] = thrown;
    return Ok();
}

ConsoleResult TimeFactor(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> factor = ParseInt(arguments[0], 0, kMostTimeFactor);
    if (!factor) {
        return RangeError("N", 0, kMostTimeFactor);
    }
    context.unit.SetTimeFactor(*factor, context.now);
    return Ok();
}

ConsoleResult Run(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> span = ParseInt(arguments[0], 1, kMostRunMs);
    if (!span) {
        return RangeError("MS", 1, kMostRunMs);
    }
    // Otherwise the clock would add its own time, and no run would be like another.
    if (context.unit.timeFactor() != 0) {
        return Error("\"time-factor 0\" expected first");
    }
    context.unit.Run(std::chrono::milliseconds(*span), context.now);
    return Ok();
}

constexpr ConsoleCommand kCommands[] = {
    {"place", "TRAIN SECTION [CM]", 2, kAnyNumberOfArguments, &Place,
     "Puts TRAIN into SECTION, standing, its nose CM from the section's back or in the middle.",
     "place Goods train platform-1 120"},
    {"point", "D straight|thrown", 2, 2, &Point, "Moves point D (0..511).", "point 1 thrown"},
    {"time-factor", "N", 1, 1, &TimeFactor,
     "Lets N simulated seconds (0..100) pass in each second.", "time-factor 5"},
    {"run", "MS", 1, 1, &Run,
     "Lets MS simulated milliseconds (1..600000) pass at once, when the time factor is 0.",
     "run 20000"},
};

}  // namespace

std::span<const ConsoleCommand> RailwayConsoleCommands() {
    return kCommands;
}

}  // namespace zelvar::sim
