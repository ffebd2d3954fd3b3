// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/unit_image.h"

#include <cstddef>

namespace zelvar::twin {

namespace {

std::string Dotted(const std::string& name, int number) {
    return name + '.' + std::to_string(number);
}

std::string Memory(const std::string& name, bool permanent) {
    return name + (permanent ? ".permanent" : ".active");
}

/// Calls `use(name, value)` for each part of the state that is always there; a name is made only
/// when it is called.
template <typename Use>
void VisitMemories(const sim::UnitState& state, const Use& use) {
    for (const bool permanent : {false, true}) {
        for (int line = 0; line < sim::kTractionLines; ++line) {
            const auto& settings =
                state.memories.traction[static_cast<std::size_t>(line)].Part(permanent);
            for (int parameter = 1; parameter < sim::kTractionParameters; ++parameter) {
                use([&] { return Dotted(Memory(Dotted("traction", line), permanent), parameter); },
                    settings[static_cast<std::size_t>(parameter)]);
            }
        }
        for (int module = 0; module < sim::kPointModules; ++module) {
            const auto& settings =
                state.memories.points[static_cast<std::size_t>(module)].Part(permanent);
            const auto name = [&] { return Memory(Dotted("points", module), permanent); };
            use([&] { return name() + ".default"; }, settings.defaultTime);
            for (int device = 0; device < sim::kPointDevices; ++device) {
                const auto& entry = settings.devices[static_cast<std::size_t>(device)];
                use([&] { return Dotted(name(), device) + ".time"; }, entry.time);
                use([&] { return Dotted(name(), device) + ".power"; }, entry.power);
            }
        }
        const auto& unit = state.memories.unit.Part(permanent);
        use([&] { return Memory("configuration", permanent); }, unit.configuration);
        use([&] { return Memory("device-mode", permanent); }, unit.deviceMode);
    }
}

template <typename Use>
void VisitFixed(const sim::UnitState& state, const Use& use) {
    VisitMemories(state, use);
    const auto flag = [&](const char* name, int value) {
        use([&] { return std::string(name); }, value);
    };
    flag("options", state.memories.options);
    flag("hfi", state.hfiLevel);
    flag("fault", state.fault);
    flag("hold", state.hold);
    flag("stop", state.stopRequested);
    flag("transparent", state.transparent);
    for (int number = 0; number < sim::kBlocks; ++number) {
        const sim::Block& block = state.drive.blocks()[static_cast<std::size_t>(number)];
        const auto name = [&] { return Dotted("block", number); };
        use([&] { return name() + ".target"; }, block.speed.target());
        use([&] { return name() + ".forward"; }, block.forward);
        use([&] { return name() + ".light"; }, block.light);
    }
}

void ListDrive(Changes& all, const sim::Drive& drive) {
    for (const auto& [ends, inverted] : drive.links()) {
        all[Dotted(Dotted("link", ends.first), ends.second)] = inverted;
    }
    for (const auto& [decoder, locomotive] : drive.dcc()) {
        const std::string name =
            Dotted(decoder.longAddress ? "dcc.long" : "dcc.short", decoder.address);
        all[name + ".steps"] = locomotive.steps;
        all[name + ".speed"] = locomotive.speed;
        all[name + ".forward"] = locomotive.forward;
        all[name + ".emergency-stop"] = locomotive.emergencyStop;
        all[name + ".block"] = locomotive.block;
        all[name + ".functions"] = static_cast<int>(locomotive.functions.to_ulong());
    }
    for (const auto& [decoder, locomotive] : drive.mcc()) {
        const std::string name = Dotted("mcc", decoder);
        all[name + ".half-steps"] = locomotive.halfSteps.target();
        all[name + ".emergency-stop"] = locomotive.emergencyStop;
        all[name + ".functions"] = locomotive.functions;
    }
}

Changes ListVariable(const sim::UnitState& state) {
    Changes all;
    ListDrive(all, state.drive);
    for (const auto& [device, thrown] : state.accessories.points) {
        all[Dotted("point", device)] = thrown;
    }
    for (const auto& [place, thrown] : state.accessories.modulePoints) {
        all[Dotted(Dotted("module-point", place.first), place.second)] = thrown;
    }
    for (const auto& [place, aspect] : state.accessories.aspects) {
        all[Dotted(Dotted("aspect", place.first), place.second)] = aspect;
    }
    for (const auto& [output, setting] : state.accessories.outputs) {
        all[Dotted("output", output) + ".instruction"] = setting.instruction;
        all[Dotted("output", output) + ".parameter"] = setting.parameter;
    }
    return all;
}

}  // namespace

UnitImage::UnitImage(const sim::UnitState& state) : variable_(ListVariable(state)) {
    VisitFixed(state, [this](const auto&, int value) { fixed_.push_back(value); });
}

Changes UnitImage::ChangesTo(const sim::UnitState& state) const {
    Changes changes;
    std::size_t place = 0;
    VisitFixed(state, [&](const auto& name, int value) {
        if (fixed_[place++] != value) {
            changes[name()] = value;
        }
    });
    const Changes now = ListVariable(state);
    for (const auto& [name, value] : now) {
        const auto before = variable_.find(name);
        if (before == variable_.end() || before->second != value) {
            changes[name] = value;
        }
    }
    for (const auto& [name, value] : variable_) {
        if (now.count(name) == 0) {
            changes[name] = kGone;
        }
    }
    return changes;
}

}  // namespace zelvar::twin
