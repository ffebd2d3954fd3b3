// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace zelvar::e2e {

/// The colours that a desktop with a dark theme gives its programs.
QPalette DarkPalette();

}  // namespace zelvar::e2e
