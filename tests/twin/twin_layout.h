// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sim/unit/layout.h"

namespace zelvar::twin {

/// A KB-E with each kind of module at the first and last place it can have:
/// VD-F in lines 0, 3 and 31; VD60 with their second units in 5 (37) and 30 (62), without one in
/// 16; QLRX-s in 8 and 15; point-motor modules 0, 7, 8, 9 and 15; signal controllers 0 and 31.
sim::Layout EveryKind();

}  // namespace zelvar::twin
