// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "config/module_commands.h"
#include "config/selection_list.h"
#include "controls/drop_down_list.h"

namespace zelvar {

/// Fills a module selection list again and selects the entry that the list names, which reports a
/// choice.
void FillSelection(DropDownList& control, const SelectionList& list);

/// The present content of a module selection list.
ModuleSelection SelectionOf(const DropDownList& control);

}  // namespace zelvar
