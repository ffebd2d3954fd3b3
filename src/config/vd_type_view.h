// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace zelvar {

// The kinds of traction modules that a control is for; sums of them are sets.
constexpr unsigned kForVD60 = 1;
constexpr unsigned kForVDF = 2;
constexpr unsigned kForQlrx = 4;
constexpr unsigned kForAny = kForVD60 | kForVDF | kForQlrx;

/// Which "Get" buttons are offered: none, all of them, or "Check MS mode" alone.
enum class VDGetButtons { None, All, CheckOnly };

/// What the tab of the traction modules shows for a target.
struct VDTypeView {
    /// The frames that are for any of these kinds are shown.
    unsigned frames = 0;
    VDGetButtons getButtons = VDGetButtons::None;
    const char* caption = "";
    bool captionVisible = true;
    /// `frmMS` is shown although the frames of its kind are not.
    bool withMSFrame = false;
};

/// @param data item data of the selected entry: a line 0..63 or a group
/// @param type for a line its type code, else ignored
VDTypeView VDTypeViewOf(int data, std::int16_t type);

}  // namespace zelvar
