// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/central_unit.h"

namespace zelvar {

namespace {

struct UnitRow {
    int type;
    std::string_view caption;
    std::string_view prefix;
};

constexpr UnitRow kUnits[] = {
    // The prefix of a KB-F has no space: its version follows directly (KB-F1.02). This is
    // intentional.
    {kUnitKBF, "KB-F", "KB-F"},
    {kUnitKBE, "KB-E", "KB-E "},
    {kUnitKBG, "KB-G", "KB-G "},
    {kUnitQlrx, "QLRX", "QLRX "},
};

constexpr UnitRow kUnknownUnit{-1, "?", "?"};

const UnitRow& RowOf(const CentralUnit& unit) {
    for (const UnitRow& row : kUnits) {
        if (row.type == unit.type) {
            return row;
        }
    }
    return kUnknownUnit;
}

}  // namespace

std::string_view CentralUnitCaption(const CentralUnit& unit) {
    return RowOf(unit).caption;
}

std::string SystemVersionText(const CentralUnit& unit) {
    std::string text(RowOf(unit).prefix);
    if (unit.version >= 0) {
        text += FormatVersion(unit.version);
    }
    return text;
}

}  // namespace zelvar
