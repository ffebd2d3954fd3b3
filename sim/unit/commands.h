// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>

#include "sim/protocol/wire.h"

namespace zelvar::sim {

struct UnitState;

/// What one data value of a command has to be: `value` in the bits of `mask`.
struct ValuePattern {
    std::uint8_t mask = 0;
    std::uint8_t value = 0;
};

constexpr ValuePattern Is(int value) {
    return {0x7F, static_cast<std::uint8_t>(value)};
}
constexpr ValuePattern Any() {
    return {0, 0};
}
/// The bits of `mask` give `value`; the others carry the command's own data.
constexpr ValuePattern Bits(int mask, int value) {
    return {static_cast<std::uint8_t>(mask), static_cast<std::uint8_t>(value)};
}

/// The shape of one command: as many data values as patterns, each of which has to fit.
class CommandPattern {
  public:
    constexpr CommandPattern(std::initializer_list<ValuePattern> values) {
        for (const ValuePattern& value : values) {
            values_[count_++] = value;
        }
    }
    constexpr bool Matches(const Payload& data) const {
        if (data.size() != count_) {
            return false;
        }
        for (std::size_t index = 0; index < count_; ++index) {
            if ((data[index] & values_[index].mask) != values_[index].value) {
                return false;
            }
        }
        return true;
    }

  private:
    std::array<ValuePattern, kMaxDataBytes> values_{};
    std::size_t count_ = 0;
};

/// Carries one command out. Without an answer of its own the command is acknowledged.
using CommandHandler = std::optional<Payload> (*)(UnitState&, const Payload&);

/// One command the unit knows. Adding a command is adding a row to one of the tables.
struct CommandRow {
    std::string_view name;
    CommandPattern pattern;
    CommandHandler run;
};

/// Polls and what the unit tells of itself and of the layout.
std::span<const CommandRow> StatusCommands();
/// Settings of traction and point modules.
std::span<const CommandRow> ModuleCommands();
/// Locomotives, blocks and their links.
std::span<const CommandRow> DriveCommands();
/// Points, signals and outputs.
std::span<const CommandRow> AccessoryCommands();
/// Configuration, options and transparent mode of the unit.
std::span<const CommandRow> UnitCommands();

/// The row that fits; the first one when there are several, null when the unit does not know it.
const CommandRow* FindCommand(const Payload& data);
/// Every row of every table, in the order of the search.
std::span<const std::span<const CommandRow>> CommandTables();

}  // namespace zelvar::sim
