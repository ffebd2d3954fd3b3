// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <vector>

namespace zelvar::twin {

/// A file of the program, its comments and the content of its literals blanked out.
struct Source {
    /// Below src/, with slashes.
    std::string path;
    std::string text;

    bool IsHeader() const { return path.ends_with(".h"); }
};

/// A source of this text, for the scan.
Source SourceOf(const std::string& path, const std::string& text);

/// Every header and source file of the program.
std::vector<Source> ProgramSources();

/// The names of functions that give a `Command` or `ModuleCommand`, also an optional one or
/// several, and of constants of these types.
std::set<std::string> BuildersIn(const Source& source);

/// A call that hands a command over, `Transact` or `SendModuleCommand`.
struct Handover {
    std::string path;
    /// The first argument, its blanks reduced to one.
    std::string argument;

    auto operator<=>(const Handover&) const = default;
};

std::vector<Handover> HandoversIn(const Source& source);

/// Whether a name stands in a text as a word of its own.
bool HasWord(const std::string& text, const std::string& word);

}  // namespace zelvar::twin
