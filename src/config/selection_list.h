// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "status/module_registry.h"

namespace zelvar {

// Item data of the group entries of `cboVD` and `cboJS`; module entries carry the line number.
constexpr int kAllVDxx = -1;
constexpr int kAllVDF = -2;
constexpr int kAllQlrx = -3;
constexpr int kAllVD60 = -4;
constexpr int kAllJs = -1;

struct SelectionEntry {
    std::string text;
    int data = 0;

    bool operator==(const SelectionEntry&) const = default;
};

/// What a module selection list is filled with.
struct SelectionList {
    std::vector<SelectionEntry> entries;
    /// The entry to select, or -1 for none.
    int selected = -1;
};

/// The entries of `cboVD`. @param classic only the lines that the Classic View knows
SelectionList TractionModuleList(const ModuleRegistry& registry, bool classic);

/// The entries of `cboJS`. @param classic only the modules that the Classic View knows
SelectionList PointMotorModuleList(const ModuleRegistry& registry, bool classic);

}  // namespace zelvar
