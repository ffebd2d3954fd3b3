// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/speed_read_out.h"

namespace zelvar {

std::string SpeedReadOut(int speed, bool forward) {
    return (forward ? ">>" : "<<") + std::to_string(speed);
}

}  // namespace zelvar
