// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/selection.h"

#include "controls/naming.h"

namespace zelvar {

void FillSelection(DropDownList& control, const SelectionList& list) {
    control.Clear();
    for (const SelectionEntry& entry : list.entries) {
        control.Append(Text(entry.text), entry.data);
    }
    control.setCurrentIndex(list.selected);
}

}  // namespace zelvar
