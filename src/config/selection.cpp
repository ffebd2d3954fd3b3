// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/selection.h"

#include "controls/naming.h"

namespace zelvar {

void FillSelection(DropDownList& control, const SelectionList& list) {
    control.Clear();
    for (const SelectionEntry& entry : list.entries) {
        control.Append(ToQString(entry.text), entry.data);
    }
    control.setCurrentIndex(list.selected);
}

ModuleSelection SelectionOf(const DropDownList& control) {
    ModuleSelection selection{control.count(), {}};
    if (control.currentIndex() >= 0) {
        selection.data = control.currentData().toInt();
    }
    return selection;
}

}  // namespace zelvar
