// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace zelvar {

/// A label whose caption is its accessible name, too. @param buddy the control that it names
QLabel* CaptionLabel(const QString& name, const QString& caption, QWidget* parent,
                     QWidget* buddy = nullptr);

}  // namespace zelvar
