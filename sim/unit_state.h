// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>

#include "layout.h"
#include "reports.h"

namespace zelvar::sim {

/// Everything the commands and the console work on.
struct UnitState {
    Layout layout;
    bool fault = false;
    bool hold = false;
    bool stopRequested = false;
    ReportQueue reports;
    std::bitset<kBlocks> overcurrent;
    std::bitset<kFeedbackInputs> feedback;
};

}  // namespace zelvar::sim
