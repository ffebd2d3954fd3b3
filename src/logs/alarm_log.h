// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "protocol/reports.h"

namespace zelvar {

/// The line of the alarm log, with its line end "\r\n".
std::string AlarmLine(const OvercurrentReport& report);

}  // namespace zelvar
