// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "protocol/vd_type.h"

namespace zelvar {

// The types of traction modules that a control is for.
inline constexpr VDTypes kForVD60{VDType::Vd60};
inline constexpr VDTypes kForVDF{VDType::VdF};
inline constexpr VDTypes kForQlrx{VDType::QlrxS};
inline constexpr VDTypes kForAny = kAllVDTypes;

/// Which "Get" buttons are offered: none, all of them, or "Check MS mode" alone.
enum class VDGetButtons { None, All, CheckOnly };

/// What the tab of the traction modules shows for a target.
struct VDTypeView {
    /// The frames that are for any of these types are shown.
    VDTypes frames;
    VDGetButtons getButtons = VDGetButtons::None;
    const char* caption = "";
    bool captionVisible = true;
    /// `frmMS` is shown although the frames of its kind are not.
    bool withMSFrame = false;
};

/// @param data item data of the selected entry: a line 0..63 or a group
/// @param type for a line its type, else ignored
VDTypeView VDTypeViewOf(int data, VDType type);

}  // namespace zelvar
