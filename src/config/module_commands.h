// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "link/services.h"
#include "protocol/module_command.h"
#include "status/module_registry.h"

namespace zelvar {

inline constexpr std::string_view kRequestStatusText =
    "Please request Status first to register modules";

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
