// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/state_table.h"

#include <algorithm>
#include <cstdlib>

#include "sim/console/railway_listing.h"
#include "sim/console/settings_table.h"
#include "sim/protocol/names.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

using Row = std::vector<std::string>;

std::string Number(int number) {
    return std::to_string(number);
}

std::string OnOff(bool on) {
    return on ? "on" : "off";
}

TableSection Unit(const UnitState& state) {
    const Layout& layout = state.layout;
    const UnitSettings& active = state.memories.unit.active;
    const UnitSettings& permanent = state.memories.unit.permanent;
    std::string now = state.fault && state.hold ? "fault, held"
                      : state.fault             ? "fault"
                      : state.hold              ? "held"
                                                : "OK";
    now.append(state.stopRequested ? ", stop requested" : "")
        .append(state.transparent ? ", transparent until a reboot" : "");
    TableSection section{"Unit",
                         {},
                         {{"type", UnitTypeName(layout.unitType)},
                          {"version", VersionName(layout.systemVersion)},
                          {"protocol", VersionName(layout.protocolVersion)},
                          {"state", now},
                          {"HFI level", Number(state.hfiLevel)},
                          {"configuration", ConfigurationName(active.configuration)},
                          {"64-device mode", Number(active.deviceMode)},
                          {"options", OptionsName(state.memories.options)},
                          {"reports waiting", std::to_string(state.reports.size())}}};
    if (active.configuration != permanent.configuration) {
        section.rows.push_back(
            {"permanent configuration", ConfigurationName(permanent.configuration)});
    }
    if (active.deviceMode != permanent.deviceMode) {
        section.rows.push_back({"permanent 64-device mode", Number(permanent.deviceMode)});
    }
    return section;
}

bool IsTraction(int address) {
    return FamilyOf(address) == kTractionFamily || FamilyOf(address) == kSecondaryFamily;
}

/// The traction unit 0..63 at an address of the two traction families.
std::size_t LineAt(int address) {
    const int primary = address - kTractionFamily;
    return static_cast<std::size_t>(primary >= 0 ? primary : address + kTractionLines / 2);
}

TableSection Modules(const UnitState& state) {
    TableSection section{
        "Modules",
        {"address", "module", "type", "state", "version", "master/slave", "clock", "answers"},
        {}};
    for (int address = 0; address < kModuleAddresses; ++address) {
        const ModuleSlot& slot = state.layout.At(address);
        if (!slot.Present()) {
            continue;
        }
        const bool traction = IsTraction(address);
        Row row{Number(address), ModuleName(address),
                traction ? TractionTypeName(slot.status & kTypeMask) : std::string(),
                std::string(ModuleStateName(address, slot.status)), VersionName(slot.version)};
        if (traction) {
            const TractionSettings& settings = state.memories.traction[LineAt(address)].active;
            row.push_back(SettingValueName(static_cast<int>(kMasterSlaveParameter),
                                           settings[kMasterSlaveParameter]));
            row.push_back(ClockName(slot.clock));
        } else {
            row.insert(row.end(), 2, "");
        }
        row.emplace_back(state.muted.test(static_cast<std::size_t>(address)) ? "muted" : "");
        section.rows.push_back(row);
    }
    return section;
}

TableSection Blocks(const UnitState& state) {
    TableSection section{
        "Blocks", {"block", "speed", "going to", "direction", "light", "overcurrent"}, {}};
    for (std::size_t number = 0; number < state.drive.blocks().size(); ++number) {
        const Block& block = state.drive.blocks()[number];
        const int speed = block.speed.speed();
        const int target = block.speed.target();
        const bool overcurrent = state.overcurrent.test(number);
        if (speed != 0 || target != 0 || block.light || !block.forward || overcurrent) {
            section.rows.push_back({std::to_string(number), Number(std::abs(speed)),
                                    speed == target ? "" : Number(std::abs(target)),
                                    std::string(DirectionName(block.RunsForward())),
                                    OnOff(block.light), overcurrent ? "yes" : ""});
        }
    }
    return section;
}

TableSection Links(const UnitState& state) {
    TableSection section{"Links", {"blocks", "direction"}, {}};
    for (const auto& [ends, inverted] : state.drive.links()) {
        section.rows.push_back({Number(ends.first) + " and " + Number(ends.second),
                                inverted ? "inverted" : "same way"});
    }
    return section;
}

std::string FunctionNames(const DccLocomotive& locomotive) {
    std::vector<std::string> names;
    for (std::size_t number = 0; number < locomotive.functions.size(); ++number) {
        if (locomotive.functions.test(number)) {
            names.push_back("F" + std::to_string(number));
        }
    }
    return Joined(names);
}

TableSection Locomotives(const UnitState& state) {
    TableSection section{
        "Locomotives", {"decoder", "speed", "direction", "block", "functions"}, {}};
    const auto speed = [](bool stopped, const std::string& text) {
        return stopped ? std::string("emergency stop") : text;
    };
    for (const auto& [decoder, locomotive] : state.drive.dcc()) {
        section.rows.push_back(
            {"DCC " + Number(decoder.address) + (decoder.longAddress ? " (long)" : ""),
             speed(locomotive.emergencyStop,
                   Number(locomotive.speed) + " of " + Number(locomotive.steps)),
             std::string(DirectionName(locomotive.forward)), Number(locomotive.block),
             FunctionNames(locomotive)});
    }
    for (const auto& [decoder, locomotive] : state.drive.mcc()) {
        section.rows.push_back(
            {"MCC " + Number(decoder),
             speed(locomotive.emergencyStop, HalfStepsName(locomotive.halfSteps.speed())), "", "",
             MccFunctionsName(locomotive.functions)});
    }
    return section;
}

TableSection Points(const UnitState& state) {
    TableSection section{"Points", {"point", "position"}, {}};
    for (const auto& [device, thrown] : state.accessories.points) {
        section.rows.push_back({Number(device), std::string(PositionName(thrown))});
    }
    for (const auto& [place, thrown] : state.accessories.modulePoints) {
        section.rows.push_back(
            {"module " + Number(place.first) + ", device " + Number(place.second),
             std::string(PositionName(thrown))});
    }
    return section;
}

TableSection Signals(const UnitState& state) {
    TableSection section{"Signals", {"module", "pin", "aspect"}, {}};
    for (const auto& [place, aspect] : state.accessories.aspects) {
        section.rows.push_back({Number(place.first), Number(place.second), Number(aspect)});
    }
    return section;
}

TableSection Outputs(const UnitState& state) {
    TableSection section{"Outputs", {"output", "instruction", "parameter"}, {}};
    for (const auto& [output, setting] : state.accessories.outputs) {
        section.rows.push_back(
            {Number(output), Number(setting.instruction), Number(setting.parameter)});
    }
    return section;
}

TableSection ActiveInputs(const UnitState& state) {
    std::vector<std::string> active;
    for (std::size_t input = 0; input < state.feedback.size(); ++input) {
        if (state.feedback.test(input)) {
            active.push_back(std::to_string(input));
        }
    }
    TableSection section{"Feedback", {}, {}};
    if (!active.empty()) {
        section.rows.push_back({"active inputs", Joined(active)});
    }
    return section;
}

constexpr TableSection (*kSections[])(const UnitState&) = {
    &Unit,   &Modules, &ChangedSettings, &Blocks,       &Links,      &Locomotives,
    &Points, &Signals, &Outputs,         &ActiveInputs, &TrainTable, &TrackTable,
};

/// The widths of the columns, in characters; the last one of a row takes what it needs.
std::vector<std::size_t> Widths(const TableSection& section) {
    std::vector<std::size_t> widths;
    const auto measure = [&](const Row& row) {
        widths.resize(std::max(widths.size(), row.size()), 0);
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    };
    measure(section.columns);
    for (const Row& row : section.rows) {
        measure(row);
    }
    return widths;
}

std::string RenderRow(const Row& row, const std::vector<std::size_t>& widths) {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
        std::string cell = row[column];
        cell.resize(widths[column], ' ');
        line.append("  ").append(cell);
    }
    return line.erase(line.find_last_not_of(' ') + 1) + "\n";
}

}  // namespace

std::vector<TableSection> StateSections(const UnitState& state) {
    std::vector<TableSection> sections;
    for (const auto make : kSections) {
        sections.push_back(make(state));
    }
    return sections;
}

std::string RenderSections(std::span<const TableSection> sections) {
    std::string text;
    for (const TableSection& section : sections) {
        if (section.rows.empty()) {
            continue;
        }
        text.append(section.heading).append("\n");
        const std::vector<std::size_t> widths = Widths(section);
        if (!section.columns.empty()) {
            text.append(RenderRow(section.columns, widths));
        }
        for (const Row& row : section.rows) {
            text.append(RenderRow(row, widths));
        }
        text.append("\n");
    }
    return text;
}

}  // namespace zelvar::sim
