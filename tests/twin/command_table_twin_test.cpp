// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "protocol/commands.h"
#include "sim/unit/central_unit.h"
#include "sim/unit/commands.h"
#include "support/command_arguments.h"

namespace zelvar::twin {
namespace {

std::string NameInTheUnit(const Command& command) {
    sim::Payload payload;
    for (std::size_t i = 0; i < command.count; ++i) {
        payload.Append(command.values.at(i));
    }
    return std::string(sim::CentralUnit::CommandName(payload));
}

/// These option bytes are the commands for transparent mode.
bool SwitchesToTransparentMode(const CommandRow& row, const testing::Arguments& arguments) {
    return row.name == "unit-set-options" &&
           (arguments[0] == 16 || arguments[0] == 32 || arguments[0] == 48);
}

TEST(CommandTable, TheUnitKnowsEveryCommandByTheSameName) {
    for (const CommandRow& row : AllCommands()) {
        testing::ForEachArguments(row, [&row](const testing::Arguments& arguments) {
            if (!SwitchesToTransparentMode(row, arguments)) {
                ASSERT_EQ(NameInTheUnit(row.build(arguments)), row.name)
                    << ::testing::PrintToString(arguments);
            }
        });
    }
}

TEST(CommandTable, TheProgramHasEveryCommandOfTheUnit) {
    for (const auto& table : sim::CommandTables()) {
        for (const sim::CommandRow& row : table) {
            EXPECT_NE(FindCommand(row.name), nullptr) << row.name;
        }
    }
}

}  // namespace
}  // namespace zelvar::twin
