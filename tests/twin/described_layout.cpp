// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/described_layout.h"

#include <random>
#include <vector>

namespace zelvar::twin {

namespace {

constexpr int kPrimaryLines = 32;
constexpr const char* kNothing = "--";

/// "1.02 C" as the number 1023: the letter is the last digit.
int VersionNumber(const std::string& text) {
    if (text.empty()) {
        return 0;
    }
    const int letter = text.size() > 4 ? text[5] - 'A' + 1 : 0;
    return (text[0] - '0') * 1000 + (text[2] - '0') * 100 + (text[3] - '0') * 10 + letter;
}

const DescribedModule* Find(const std::map<int, DescribedModule>& modules, int number) {
    const auto found = modules.find(number);
    return found == modules.end() ? nullptr : &found->second;
}

/// A state in words. @param whenFaulty "Fault" for traction, "Hold" for point-motor modules
std::string StateText(sim::ModuleState state, const char* whenFaulty) {
    switch (state) {
        case sim::ModuleState::kOk:
            return "OK";
        case sim::ModuleState::kIdle:
            return "Idle";
        default:
            return whenFaulty;
    }
}

std::string VersionText(const DescribedModule* module, const char* none) {
    if (module == nullptr) {
        return kNothing;
    }
    return module->version.empty() ? none : module->version;
}

int TypeNumber(Kind kind) {
    constexpr int kStrangerType = 5;
    return kind == Kind::kVdF     ? 0
           : kind == Kind::kVd60  ? 1
           : kind == Kind::kQlrxS ? 2
                                  : kStrangerType;
}

}  // namespace

sim::Layout DescribedLayout::ForTheUnit() const {
    sim::Layout layout = sim::EmptyLayout();
    const auto put = [&](int address, const DescribedModule& module) {
        layout.At(address) = {sim::StatusByte(TypeNumber(module.kind), module.state),
                              VersionNumber(module.version)};
    };
    for (const auto& [line, module] : traction) {
        put(line < kPrimaryLines ? 32 + line : line - kPrimaryLines, module);
    }
    for (const auto& [position, module] : points) {
        put(64 + position / 8 * 16 + position % 8, module);
    }
    for (const auto& [number, module] : signalControllers) {
        put(96 + number, module);
    }
    layout.dipSwitches = 0;
    for (std::size_t i = 0; i < dipOn.size(); ++i) {
        layout.dipSwitches |= static_cast<std::uint8_t>(dipOn[i] ? 0 : 1 << i);
    }
    const std::map<std::string, int> types{
        {"KB-F", 1}, {"KB-E", 2}, {"KB-G", 3}, {"QLRX", 10}, {"?", 7}};
    layout.unitType = types.at(unitName);
    layout.systemVersion = VersionNumber(unitVersion);
    layout.protocolVersion = VersionNumber(protocolVersion);
    return layout;
}

std::string DescribedLayout::TypeOf(int line) const {
    const DescribedModule* module = Find(traction, line);
    constexpr const char* kTypes[] = {"VD-F", "VD60", "QLRX-s", "?"};
    return module == nullptr ? kNothing : kTypes[static_cast<int>(module->kind)];
}

std::string DescribedLayout::TractionState(int line) const {
    const DescribedModule* module = Find(traction, line);
    if (module == nullptr) {
        return kNothing;
    }
    if (line >= kPrimaryLines) {
        // Nobody asks for the second unit of what is no VD60.
        if (TypeOf(line - kPrimaryLines) != "VD60") {
            return kNothing;
        }
        if (module->kind != Kind::kVd60) {
            return "Error";
        }
    }
    return StateText(module->state, "Fault");
}

std::string DescribedLayout::TractionVersion(int line) const {
    const std::string state = TractionState(line);
    const bool shown = state != kNothing && state != "Error";
    return shown ? VersionText(Find(traction, line), "?") : kNothing;
}

std::string DescribedLayout::PointsState(int position) const {
    const DescribedModule* module = Find(points, position);
    return module == nullptr ? kNothing : StateText(module->state, "Hold");
}

std::string DescribedLayout::PointsVersion(int position) const {
    return VersionText(Find(points, position), kNothing);
}

std::string DescribedLayout::SignalState(int number) const {
    // A signal controller knows no fault.
    const DescribedModule* module = Find(signalControllers, number);
    return module == nullptr ? kNothing : StateText(module->state, "OK");
}

std::string DescribedLayout::SignalVersion(int number) const {
    return VersionText(Find(signalControllers, number), "?");
}

std::string DescribedLayout::ClassicType(int line) const {
    const DescribedModule* module = Find(traction, line);
    if (module == nullptr) {
        return "N.A.";
    }
    return module->kind == Kind::kQlrxS ? "QLRX-s" : "VD-F";
}

std::string DescribedLayout::ClassicState(int line) const {
    const DescribedModule* module = Find(traction, line);
    if (module == nullptr) {
        return kNothing;
    }
    const bool faulty = StateText(module->state, "Fault") == "Fault";
    return faulty ? "Fault" : "OK";
}

std::string DescribedLayout::ClassicPointsState(int position) const {
    return Find(points, position) == nullptr ? kNothing : "OK";
}

std::string DescribedLayout::SystemVersion() const {
    if (unitName == "?") {
        return "?" + unitVersion;
    }
    // Of all units the KB-F alone has no blank behind its name.
    return unitName + (unitName == "KB-F" ? "" : " ") + unitVersion;
}

DescribedLayout AnyLayout(std::uint32_t seed) {
    std::mt19937 random(seed);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    const auto anyModule = [&](Kind kind) {
        constexpr const char* kVersions[] = {"",       "1.00",   "1.02 C", "0.01",
                                             "2.01 G", "9.77 A", "3.10"};
        constexpr sim::ModuleState kStates[] = {sim::ModuleState::kOk, sim::ModuleState::kIdle,
                                                sim::ModuleState::kFault, sim::ModuleState::kHold};
        return DescribedModule{kind, kStates[below(4)], kVersions[below(7)]};
    };
    DescribedLayout layout;
    for (int line = 0; line < kPrimaryLines; ++line) {
        const auto kind = static_cast<Kind>(below(4));
        if (below(3) > 0) {
            layout.traction[line] = anyModule(kind);
        }
        if (below(3) > 0) {
            const Kind second = below(4) > 0 ? Kind::kVd60 : static_cast<Kind>(below(4));
            layout.traction[kPrimaryLines + line] = anyModule(second);
        }
    }
    for (int position = 0; position < 16; ++position) {
        if (below(2) > 0) {
            layout.points[position] = anyModule(Kind::kVdF);
        }
    }
    for (int number = 0; number < 32; ++number) {
        if (below(2) > 0) {
            layout.signalControllers[number] = anyModule(Kind::kVdF);
        }
    }
    for (bool& on : layout.dipOn) {
        on = below(2) > 0;
    }
    constexpr const char* kUnits[] = {"KB-F", "KB-E", "KB-G", "QLRX", "?"};
    constexpr const char* kUnitVersions[] = {"1.01", "1.01 A", "1.02", "1.02 A", "0.07 G"};
    layout.unitName = kUnits[below(5)];
    layout.unitVersion = kUnitVersions[below(5)];
    return layout;
}

}  // namespace zelvar::twin
