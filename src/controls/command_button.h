// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

#include <functional>

#include "link/link.h"

namespace zelvar {

/// A push button that Enter presses as well as Space. @param accessibleName its accessible name
QPushButton* MakeCommandButton(const QString& caption, const QString& name,
                               const QString& accessibleName, QWidget* parent);

/// Lets a click send one command, if the port is open. @param command makes it at that time, of the
/// values in the form
void SendOnClick(QPushButton* button, Link& link, std::function<Command()> command);

}  // namespace zelvar
