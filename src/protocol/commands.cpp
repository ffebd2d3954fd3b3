// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/commands.h"

#include <algorithm>

#include "protocol/accessories.h"
#include "protocol/blocks.h"
#include "protocol/locomotives.h"
#include "protocol/point_settings.h"
#include "protocol/status.h"
#include "protocol/traction_settings.h"
#include "protocol/unit_settings.h"

namespace zelvar {

const std::vector<CommandRow>& AllCommands() {
    static const std::vector<CommandRow> kAll = [] {
        std::vector<CommandRow> all;
        for (const auto section : {StatusCommands, TractionCommands, PointCommands, UnitCommands,
                                   LocomotiveCommands, BlockCommands, AccessoryCommands}) {
            const std::vector<CommandRow> rows = section();
            all.insert(all.end(), rows.begin(), rows.end());
        }
        return all;
    }();
    return kAll;
}

const CommandRow* FindCommand(std::string_view name) {
    const std::vector<CommandRow>& all = AllCommands();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [name](const CommandRow& row) { return row.name == name; });
    return found == all.end() ? nullptr : &*found;
}

}  // namespace zelvar
