// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace zelvar {

/// When the mouse wheel may change a control.
enum class Wheel { WithFocus, Never };

/// Keeps the wheel from changing a control that the user only scrolls past.
void FilterWheel(QWidget& control, Wheel works);

}  // namespace zelvar
