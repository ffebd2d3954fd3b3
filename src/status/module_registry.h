// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "protocol/addresses.h"
#include "protocol/vd_type.h"

namespace zelvar {

/// What the Classic View knows: channel 0 alone.
constexpr int kClassicVDLines = 16;
constexpr int kClassicJsModules = 8;

/// The modules that answered the last status request. A request resets the lines that its view
/// knows; lines beyond keep their old values.
struct ModuleRegistry {
    /// By line 0..63. `VDType::Vd60` in a line 32..63 is the secondary unit of a VD60.
    std::array<VDType, kVDLines> vdTypes{};
    /// By position 0..15.
    std::array<bool, kJsModules> jsPresent{};
};

}  // namespace zelvar
