// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/state_table.h"

#include <algorithm>

#include "sim/console/state_walk.h"

namespace zelvar::sim {

namespace {

using Row = std::vector<std::string>;

/// All tables, in the order in which `state` shows them.
std::vector<TableSection> EmptySections() {
    return {
        {"Unit", {}, {}},
        {"Modules",
         {"address", "module", "type", "state", "version", "master/slave", "clock", "answers"},
         {}},
        {"Settings changed", {"module", "setting", "active", "permanent"}, {}},
        {"Blocks", {"block", "speed", "going to", "direction", "light", "overcurrent"}, {}},
        {"Links", {"blocks", "direction"}, {}},
        {"Locomotives", {"decoder", "speed", "direction", "block", "functions"}, {}},
        {"Points", {"point", "position"}, {}},
        {"Signals", {"module", "pin", "aspect"}, {}},
        {"Outputs", {"output", "instruction", "parameter"}, {}},
        {"Feedback", {}, {}},
        {"Trains", {"train", "control", "section", "nose at", "speed", "direction", "block"}, {}},
        {"Track", {"section", "block", "length", "detector", "trains"}, {}},
        {"Simulated time", {}, {}},
        {"Frames", {}, {}},
    };
}

class Tables : public StateView {
  public:
    Tables() : StateView(kTable), sections(EmptySections()) {}
    std::vector<TableSection> sections;

  private:
    void Open(std::string_view table, const StateName&) override {
        rows_ = &std::find_if(sections.begin(), sections.end(), [table](const auto& section) {
                     return section.heading == table;
                 })->rows;
        rows_->emplace_back();
    }
    void Take(const StateValue& value) override {
        rows_->back().push_back(value.isText ? std::string(value.text)
                                : value.tableWords != nullptr
                                    ? value.tableWords(static_cast<int>(value.number))
                                    : std::to_string(value.number));
    }

    std::vector<Row>* rows_ = nullptr;
};

/// The widths of the columns, in characters; the last one of a row takes what it needs.
std::vector<std::size_t> Widths(const TableSection& section) {
    std::vector<std::size_t> widths;
    const auto measure = [&](const Row& row) {
        widths.resize(std::max(widths.size(), row.size()), 0);
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    };
    measure(section.columns);
    for (const Row& row : section.rows) {
        measure(row);
    }
    return widths;
}

std::string RenderRow(const Row& row, const std::vector<std::size_t>& widths) {
    std::string line;
    for (std::size_t column = 0; column < row.size(); ++column) {
        std::string cell = row[column];
        cell.resize(widths[column], ' ');
        line.append("  ").append(cell);
    }
    return line.erase(line.find_last_not_of(' ') + 1) + "\n";
}

}  // namespace

std::vector<TableSection> StateTables(const UnitState& state) {
    Tables tables;
    WalkState(state, tables);
    return tables.sections;
}

std::string RenderSections(std::span<const TableSection> sections) {
    std::string text;
    for (const TableSection& section : sections) {
        if (section.rows.empty()) {
            continue;
        }
        text.append(section.heading).append("\n");
        const std::vector<std::size_t> widths = Widths(section);
        if (!section.columns.empty()) {
            text.append(RenderRow(section.columns, widths));
        }
        for (const Row& row : section.rows) {
            text.append(RenderRow(row, widths));
        }
        text.append("\n");
    }
    return text;
}

}  // namespace zelvar::sim
