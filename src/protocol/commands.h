// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "protocol/command_row.h"

namespace zelvar {

/// Every command of the system. Each section of the protocol adds its rows: a further command is a
/// further row there. The names are those of docs/protocol.md.
const std::vector<CommandRow>& AllCommands();

/// @return null for a name that no row has
const CommandRow* FindCommand(std::string_view name);

}  // namespace zelvar
