// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/settings_table.h"

#include "sim/protocol/names.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

void ListTraction(TableSection& section, const UnitState& state, int line) {
    const auto& memory = state.memories.traction[static_cast<std::size_t>(line)];
    const int address = LineAddress(line);
    TractionSettings factory = FactoryTractionSettings(line);
    factory[kMasterSlaveParameter] = state.layout.At(address).masterSlave;
    for (std::size_t index = 1; index < factory.size(); ++index) {
        if (memory.active[index] != factory[index] || memory.permanent[index] != factory[index]) {
            const int parameter = static_cast<int>(index);
            section.rows.push_back({ModuleName(address), SettingName(parameter),
                                    SettingValueName(parameter, memory.active[index]),
                                    SettingValueName(parameter, memory.permanent[index])});
        }
    }
}

void ListPoints(TableSection& section, const UnitState& state, int position) {
    const auto& memory = state.memories.points[static_cast<std::size_t>(position)];
    const PointSettings factory = FactoryPointSettings();
    const std::string module = ModuleName(PointAddress(position));
    if (memory.active.defaultTime != factory.defaultTime ||
        memory.permanent.defaultTime != factory.defaultTime) {
        section.rows.push_back({module, "default time", TimeName(memory.active.defaultTime),
                                TimeName(memory.permanent.defaultTime)});
    }
    const auto text = [](const PointDevice& device) {
        return TimeName(device.time, "default time") + ", power " + PowerName(device.power);
    };
    for (std::size_t device = 0; device < factory.devices.size(); ++device) {
        const PointDevice& active = memory.active.devices[device];
        const PointDevice& permanent = memory.permanent.devices[device];
        if (active != factory.devices[device] || permanent != factory.devices[device]) {
            section.rows.push_back(
                {module, "device " + std::to_string(device), text(active), text(permanent)});
        }
    }
}

}  // namespace

TableSection ChangedSettings(const UnitState& state) {
    TableSection section{"Settings changed", {"module", "setting", "active", "permanent"}, {}};
    for (int line = 0; line < kTractionLines; ++line) {
        if (state.layout.At(LineAddress(line)).Present()) {
            ListTraction(section, state, line);
        }
    }
    for (int position = 0; position < kPointModules; ++position) {
        if (state.layout.At(PointAddress(position)).Present()) {
            ListPoints(section, state, position);
        }
    }
    return section;
}

}  // namespace zelvar::sim
