// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "test/accessories/command_group.h"

namespace zelvar {

/// Sets a signal that a YR70 module controls.
CommandGroup* MakeSignalGroup(Link& link, QWidget* parent);

/// Gives one instruction to an output of a GW70 module.
CommandGroup* MakeOutputGroup(Link& link, QWidget* parent);

/// Links track blocks and unlinks them.
CommandGroup* MakeBlockLinkGroup(Link& link, QWidget* parent);

}  // namespace zelvar
