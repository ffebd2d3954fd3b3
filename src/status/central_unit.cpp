// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/central_unit.h"

#include <limits>

namespace zelvar {

namespace {

struct UnitRow {
    int type;
    std::string_view caption;
    std::string_view prefix;
    /// The last version to which `upToLimit` applies.
    int limit;
    KBConfigView upToLimit;
    KBConfigView above;
};

constexpr int kNoLimit = std::numeric_limits<int>::max();
constexpr KBConfigView kHidden{false, false, false};
constexpr KBConfigView kFull{true, true, false};
constexpr KBConfigView kFullAndSpare{true, true, true};

constexpr UnitRow kUnits[] = {
    // The prefix of a KB-F has no space: its version follows directly (KB-F1.02). This is
    // intentional.
    {1, "KB-F", "KB-F", kNoLimit, kHidden, kHidden},
    {2, "KB-E", "KB-E ", 1010, kFull, kFullAndSpare},
    {3, "KB-G", "KB-G ", 1010, kFull, kFullAndSpare},
    {10, "QLRX", "QLRX ", 1020, {true, false, false}, {true, false, true}},
};

constexpr UnitRow kUnknownUnit{-1, "?", "?", kNoLimit, kFullAndSpare, kFullAndSpare};

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

KBConfigView KBConfigViewOf(const CentralUnit& unit) {
    const UnitRow& row = RowOf(unit);
    return unit.version <= row.limit ? row.upToLimit : row.above;
}

}  // namespace zelvar
