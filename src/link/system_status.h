// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar {

/// The state of the system as the last reply gave it.
enum class SystemState { Disconnected, Run, Stop, Fault };

}  // namespace zelvar
