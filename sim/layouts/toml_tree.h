// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zelvar::sim {

struct TomlValue;
struct TomlEntry;
using TomlArray = std::vector<TomlValue>;
using TomlTable = std::vector<TomlEntry>;  // in the order of the file

/// Dates and times, which nothing here has a use for.
struct TomlDate {};

/// A value of a TOML document and where it stands.
struct TomlValue {
    std::variant<TomlTable, TomlArray, std::string, std::int64_t, double, bool, TomlDate> value;
    int line = 0;  // from 1

    const TomlTable* AsTable() const { return std::get_if<TomlTable>(&value); }
    const TomlArray* AsArray() const { return std::get_if<TomlArray>(&value); }
};

struct TomlEntry {
    std::string key;
    int line = 0;  // of the key
    TomlValue value;
};

struct TomlError {
    int line = 0;
    std::string text;
};

/// A document as a tree whose root is a table, or its first syntax error. The library that reads
/// TOML is known to this room only.
std::variant<TomlValue, TomlError> ParseToml(std::string_view text);

/// A value as a message shows it: `7`, `"north"`, `a list of 3`.
std::string Shown(const TomlValue& value);

}  // namespace zelvar::sim
