// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelvar::sim {

struct UnitState;

/// A table for people: a heading, the names of the columns (none: rows of a name and a value), the
/// rows.
struct TableSection {
    std::string_view heading;
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;
};

/// The state as tables. Those of things that are not there have no rows.
std::vector<TableSection> StateTables(const UnitState& state);

/// The sections that have rows, with aligned columns and an empty line after each.
std::string RenderSections(std::span<const TableSection> sections);

}  // namespace zelvar::sim
