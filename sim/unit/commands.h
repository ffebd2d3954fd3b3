// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "sim/protocol/pattern.h"
#include "sim/protocol/phrase.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

struct UnitState;

/// Carries one command out. The answer is empty where the command is only acknowledged.
using CommandHandler = Payload (*)(UnitState&, const Payload&);

/// Whether a command asks for something: an empty reply is not its answer then.
enum class Asks : bool { kNo, kYes };

/// One command that the unit knows. To add a command, add a row to one of the tables.
struct CommandRow {
    std::string_view name;
    FramePattern pattern;
    Phrase words;  // in the trace and in `--explain`
    CommandHandler run;
    Asks asks = Asks::kNo;
};

/// Polls and requests for the status of the unit and its modules.
std::span<const CommandRow> StatusCommands();
/// Settings of traction and point modules.
std::span<const CommandRow> ModuleCommands();
/// Locomotives, blocks and their links.
std::span<const CommandRow> DriveCommands();
/// Points, signals and outputs.
std::span<const CommandRow> AccessoryCommands();
/// Configuration, options and transparent mode of the unit.
std::span<const CommandRow> UnitCommands();

/// The first row that fits; null if the unit does not know the command.
const CommandRow* FindCommand(const Payload& data);
/// Every row of every table, in the order of the search.
std::span<const std::span<const CommandRow>> CommandTables();

}  // namespace zelvar::sim
