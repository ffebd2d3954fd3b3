// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "logs/alarm_log.h"

namespace zelvar {

std::string AlarmLine(const OvercurrentReport& report) {
    return "Overcurrent block " + std::to_string(report.block) +
           (report.detected ? " detected ............." : " .............. released") + "\r\n";
}

}  // namespace zelvar
