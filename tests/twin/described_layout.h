// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>

#include "sim/unit/layout.h"

namespace zelvar::twin {

enum class Kind { kVdF, kVd60, kQlrxS, kStranger };

/// A module as somebody beside the layout would describe it.
struct DescribedModule {
    Kind kind = Kind::kVdF;
    sim::ModuleState state = sim::ModuleState::kOk;
    /// Such as "1.02 C"; "" for a module that tells none.
    std::string version;
};

/// A layout in a hobbyist's words, and what both status views have to say of it.
struct DescribedLayout {
    /// By line 0..31, and 32..63 for the second units of VD60 modules.
    std::map<int, DescribedModule> traction;
    /// By position 0..15.
    std::map<int, DescribedModule> points;
    /// By number 0..31.
    std::map<int, DescribedModule> signalControllers;
    std::array<bool, 4> dipOn{};
    /// "KB-F", "KB-E", "KB-G", "QLRX" or "?" for another one.
    std::string unitName = "KB-E";
    std::string unitVersion = "1.02";
    std::string protocolVersion = "3.11 B";

    sim::Layout ForTheUnit() const;

    // What a field of the new view shows.
    std::string TypeOf(int line) const;
    std::string TractionState(int line) const;
    std::string TractionVersion(int line) const;
    std::string PointsState(int position) const;
    std::string PointsVersion(int position) const;
    std::string SignalState(int number) const;
    std::string SignalVersion(int number) const;

    // What a field of the Classic View shows: lines 0..15, positions 0..7.
    std::string ClassicType(int line) const;
    std::string ClassicState(int line) const;
    std::string ClassicPointsState(int position) const;

    // Of both views: the unit's type stands before its version.
    std::string SystemVersion() const;
};

/// One of many layouts with everything in every place and state. @param seed 0..
DescribedLayout AnyLayout(std::uint32_t seed);

}  // namespace zelvar::twin
