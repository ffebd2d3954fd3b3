// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include "link/system_status.h"

namespace zelvar {

/// Shows the state of the system in its words and its colour, such as "System Status = Run" in
/// blue.
void ShowSystemStateIn(QLabel& label, SystemState state);

}  // namespace zelvar
