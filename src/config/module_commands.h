// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "link/frame.h"
#include "link/services.h"
#include "status/module_registry.h"

namespace zelvar {

inline constexpr std::string_view kRequestStatusText =
    "Please request Status first to register modules";

// Where a configuration command goes. Any other target gets the two empty transactions alone.
constexpr std::uint8_t kTargetVD = 32;
constexpr std::uint8_t kTargetJs = 64;
constexpr std::uint8_t kTargetUnit = 128;

/// Added to a module command's parameter or code for the permanent settings.
constexpr int kPermanentBit = 64;

/// A configuration command before it is addressed.
struct ModuleCommand {
    /// `kTargetVD`, `kTargetJs` or `kTargetUnit`
    std::uint8_t target = 0;
    /// Modules: how many of code, arg1 and arg2 are sent. Central unit: the count of data bytes.
    std::uint8_t length = 0;
    std::uint8_t code = 0;
    std::uint8_t arg1 = 0;
    std::uint8_t arg2 = 0;

    bool operator==(const ModuleCommand&) const = default;
};

/// What a module selection list holds at present.
struct ModuleSelection {
    /// How many entries there are.
    int entries = 0;
    /// The item data of the selected entry, if one is selected.
    std::optional<int> data;
};

/// The modules that a selection stands for.
struct ChosenModules {
    /// False while the list is empty, because no status request has found a module.
    bool registered = false;
    /// In ascending order; empty when no entry is selected.
    std::vector<int> modules;
};

/// @param selection of `cboVD`: a line 0..63 or a group
ChosenModules ChosenVDModules(const ModuleRegistry& registry, const ModuleSelection& selection);

/// @param selection of `cboJS`: a position 0..15 or all 16, registered or not
ChosenModules ChosenJsModules(const ModuleSelection& selection);

/// The command as it goes to one traction module. @param module 0..63
Command CommandForVD(const ModuleCommand& command, int module);

/// The command as it goes to one point-motor module. @param module 0..15
Command CommandForJs(const ModuleCommand& command, int module);

/// The command as it goes to the central unit.
Command CommandForUnit(const ModuleCommand& command);

/// Sends configuration commands to whatever is chosen.
class ModuleCommands {
  public:
    using Query = std::function<ChosenModules()>;
    /// Asked with every command. A missing query counts as a list without entries.
    struct Queries {
        Query vd;
        Query js;
    };

    explicit ModuleCommands(const Services& services, Queries queries = {});

    /// Sends a command between two empty transactions, once for each addressed module. After a
    /// failed exchange nothing more is sent, the closing transaction included.
    void SendModuleCommand(const ModuleCommand& command);

  private:
    using Address = Command (*)(const ModuleCommand&, int);

    bool SendToTarget(const ModuleCommand& command);
    bool SendToModules(const ModuleCommand& command, const Query& query, Address address);

    Services services_;
    Queries queries_;
};

}  // namespace zelvar
