// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace zelvar {

/// A push button that Enter presses as well as Space. @param inWords its accessible name
QPushButton* MakeCommandButton(const QString& caption, const QString& name, const QString& inWords,
                               QWidget* parent);

}  // namespace zelvar
