// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "status/central_unit.h"
#include "status/module_registry.h"

namespace zelvar {

/// The protocol version from which on the new view is used (3.10 A).
constexpr int kNewViewProtocol = 3101;

enum class ModuleState { Unknown, Absent, Ok, Idle, Fault, Hold, Error };

/// "?", "--", "OK", "Idle", "Fault", "Hold" or "Error".
std::string_view ModuleStateText(ModuleState state);

/// "?", "--", "VD-F", "VD60" or "QLRX-s", as the new view shows it.
std::string_view VDTypeText(VDType type);

/// The same in the Classic View, where a module that is absent has the type "N.A.".
std::string_view ClassicVDTypeText(VDType type);

/// @param state 0..3, the Hold and Fault bits of a reply
/// @return "OK", "Hold", "Fault" or "Fault+Hold"; "?" for any other value
std::string_view SystemStateName(int state);

/// One module, or one unit of a VD60, in a status view.
struct ModuleLine {
    ModuleState state = ModuleState::Absent;
    /// Nothing until the module has answered; 0 when it reports none.
    std::optional<int> version;
};

/// "--" before an answer, "?" when a traction module or signal controller reports no version.
std::string VersionText(const ModuleLine& line);

/// The same for a point-motor module, which shows "--" in both cases. This is intentional.
std::string JsVersionText(const ModuleLine& line);

/// Everything a status request has found out so far. The two status views are renderings of it.
struct SystemStatus {
    bool classic = false;
    /// 0..3
    int systemState = 0;
    /// As `DecodeVersion` gives it, -1 until known.
    int protocolVersion = -1;
    CentralUnit unit;
    std::array<VDType, kVDPrimaryLines> vdTypes{};
    std::array<ModuleLine, kVDLines> vd{};
    std::array<ModuleLine, kJsModules> js{};
    std::array<ModuleLine, kYRModules> yr{};
    /// Whether each DIP switch is on; nothing without an answer. Classic View only.
    std::optional<std::array<bool, 4>> dip;
};

}  // namespace zelvar
