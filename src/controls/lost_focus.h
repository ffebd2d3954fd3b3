// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

namespace zelvar {

/// Calls the handler whenever the keyboard focus moves from the control to another one. It does
/// not when another program comes to the front or a list drops down, since the focus returns.
void OnLostFocus(QWidget* control, std::function<void()> handler);

}  // namespace zelvar
