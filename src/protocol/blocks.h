// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "protocol/command_row.h"

namespace zelvar {

// The commands that link and clear track blocks. Blocks are 0..255.

enum class BlockPolarity { Same, Inverted };
enum class UnlinkDirection { Down, Up };

Command LinkBlocks(int first, int second, BlockPolarity polarity);

/// @param clearUnlinked the blocks that are linked no more are cleared, too
Command UnlinkBlocks(int first, UnlinkDirection direction, bool clearUnlinked);

Command ClearBlock(int block);

std::vector<CommandRow> BlockCommands();

}  // namespace zelvar
