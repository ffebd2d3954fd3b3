// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/system_report.h"

#include <cstddef>

namespace zelvar {

namespace {

/// In the order of `ModuleState`.
constexpr std::array<std::string_view, 7> kModuleStates{"?",     "--",   "OK",   "Idle",
                                                        "Fault", "Hold", "Error"};
/// In the order of `VDType`.
constexpr std::array<std::string_view, 5> kVDTypes{"--", "?", "VD-F", "QLRX-s", "VD60"};

constexpr std::array<std::string_view, 4> kSystemStates{"OK", "Hold", "Fault", "Fault+Hold"};

std::string VersionText(const ModuleLine& line, const char* none) {
    if (!line.version) {
        return "--";
    }
    return *line.version == 0 ? none : FormatVersion(*line.version);
}

}  // namespace

std::string_view ModuleStateText(ModuleState state) {
    return kModuleStates[static_cast<std::size_t>(state)];
}

std::string_view VDTypeText(VDType type) {
    return kVDTypes[static_cast<std::size_t>(type)];
}

std::string_view ClassicVDTypeText(VDType type) {
    return type == VDType::Absent ? "N.A." : VDTypeText(type);
}

std::string_view SystemStateName(int state) {
    if (state < 0 || state >= static_cast<int>(kSystemStates.size())) {
        return "?";
    }
    return kSystemStates[state];
}

std::string VersionText(const ModuleLine& line) {
    return VersionText(line, "?");
}

std::string JsVersionText(const ModuleLine& line) {
    return VersionText(line, "--");
}

}  // namespace zelvar
