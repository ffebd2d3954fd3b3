// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "protocol/command_row.h"

namespace zelvar {

// The commands that operate one accessory.

/// Moves the point motor with that number. @param device 0..511
Command SetPoint(int device, bool thrown);

/// Moves a point motor of one JS70 module. @param module 0..15 @param device 0..63
Command SetModulePoint(int module, int device, bool thrown);

/// @param module 0..31, a YR70 @param pin 0..127 @param aspect 0..11
Command SetSignalAspect(int module, int pin, int aspect);

/// @param output 0..511, of a GW70 @param instruction 0..63 @param parameter 0..127
Command SetOutput(int output, int instruction, int parameter);

std::vector<CommandRow> AccessoryCommands();

}  // namespace zelvar
