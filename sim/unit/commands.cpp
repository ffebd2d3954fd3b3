// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"

namespace zelvar::sim {

std::span<const std::span<const CommandRow>> CommandTables() {
    static const std::span<const CommandRow> kTables[] = {
        StatusCommands(), ModuleCommands(), UnitCommands(), DriveCommands(), AccessoryCommands()};
    return kTables;
}

const CommandRow* FindCommand(const Payload& data) {
    for (const std::span<const CommandRow> table : CommandTables()) {
        for (const CommandRow& row : table) {
            if (row.pattern.Matches(data)) {
                return &row;
            }
        }
    }
    return nullptr;
}

}  // namespace zelvar::sim
