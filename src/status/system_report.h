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

enum class VDType { Unknown, Absent, NotAvailable, VdF, Vd60, QlrxS };

/// "?", "--", "N.A.", "VD-F", "VD60" or "QLRX-s".
std::string_view VDTypeText(VDType type);

/// @param state 0..3, the Hold and Fault bits of a reply
/// @return "OK", "Hold", "Fault" or "Fault+Hold"; "?" for any other value
std::string_view SystemStateName(int state);

/// One module, or one unit of a VD60, in a status view.
struct ModuleLine {
    ModuleState state = ModuleState::Absent;
    /// Nothing until a module told it; 0 when the module has none to tell.
    std::optional<int> version;
};

/// "--" when nothing was told, "?" when a traction module or signal controller tells none.
std::string VersionText(const ModuleLine& line);

/// The same for a point-motor module, which shows "--" in both cases, on purpose.
std::string JsVersionText(const ModuleLine& line);

/// Everything a status request found out. The two status views are two renderings of it.
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
    /// Whether each DIP switch is on; nothing when the unit did not tell. Classic View only.
    std::optional<std::array<bool, 4>> dip;
};

}  // namespace zelvar
