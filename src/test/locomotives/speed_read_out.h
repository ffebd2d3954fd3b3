// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelvar {

/// The read-out of a speed: the direction mark, directly followed by the speed, such as ">>12".
std::string SpeedReadOut(int speed, bool forward);

}  // namespace zelvar
