// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/module_commands.h"

#include <cstddef>
#include <numeric>
#include <string>
#include <utility>

#include "config/selection_list.h"
#include "protocol/status.h"

namespace zelvar {

namespace {

struct Group {
    int data;
    /// Lines from here on are not looked at.
    int lines;
    VDTypes types;
};

/// VD-F and QLRX-s have no secondary units, so they are looked for among the primary lines alone.
constexpr Group kGroups[] = {
    {kAllVD60, kVDLines, {VDType::Vd60}},
    {kAllQlrx, kVDPrimaryLines, {VDType::QlrxS}},
    {kAllVDF, kVDPrimaryLines, {VDType::VdF}},
    {kAllVDxx, kVDLines, {VDType::VdF, VDType::Vd60}},
};

std::vector<int> LinesOfTypes(const ModuleRegistry& registry, const Group& group) {
    std::vector<int> lines;
    for (int m = 0; m < group.lines; ++m) {
        if (group.types.Contains(registry.vdTypes.at(static_cast<unsigned>(m)))) {
            lines.push_back(m);
        }
    }
    return lines;
}

}  // namespace

ChosenModules ChosenVDModules(const ModuleRegistry& registry, const ModuleSelection& selection) {
    ChosenModules chosen{selection.entries > 0, {}};
    if (!selection.data) {
        return chosen;
    }
    for (const Group& group : kGroups) {
        if (group.data == *selection.data) {
            chosen.modules = LinesOfTypes(registry, group);
            return chosen;
        }
    }
    chosen.modules.push_back(*selection.data);
    return chosen;
}

ChosenModules ChosenJsModules(const ModuleSelection& selection) {
    ChosenModules chosen{selection.entries > 0, {}};
    if (selection.data == kAllJs) {
        chosen.modules.resize(kJsModules);
        std::iota(chosen.modules.begin(), chosen.modules.end(), 0);
    } else if (selection.data) {
        chosen.modules.push_back(*selection.data);
    }
    return chosen;
}

ModuleCommands::ModuleCommands(const Services& services, Queries queries)
    : services_(services), queries_(std::move(queries)) {}

void ModuleCommands::SendModuleCommand(const ModuleCommand& command) {
    if (!services_.link.CheckPort() || !services_.link.Transact(kEmptyTransaction)) {
        return;
    }
    if (SendToTarget(command)) {
        services_.link.Transact(kEmptyTransaction);
    }
}

bool ModuleCommands::SendToTarget(const ModuleCommand& command) {
    switch (command.target) {
        case kTargetVD:
            return SendToModules(command, queries_.vd, CommandForVD);
        case kTargetJs:
            return SendToModules(command, queries_.js, CommandForJs);
        case kTargetUnit:
            return services_.link.Transact(CommandForUnit(command)).has_value();
        default:
            return true;
    }
}

bool ModuleCommands::SendToModules(const ModuleCommand& command, const Query& query,
                                   Address address) {
    const ChosenModules chosen = query ? query() : ChosenModules();
    if (!chosen.registered) {
        services_.messageBox.Tell(std::string(kRequestStatusText), BoxIcon::Exclamation);
        return true;
    }
    std::optional<ProgressScope> progress;
    if (chosen.modules.size() > 1) {
        progress.emplace(services_.progress, "Configuring the modules",
                         static_cast<int>(chosen.modules.size()));
    }
    for (const int module : chosen.modules) {
        if (!services_.link.Transact(address(command, module))) {
            return false;
        }
        if (progress) {
            services_.progress.Step();
        }
    }
    return true;
}

}  // namespace zelvar
