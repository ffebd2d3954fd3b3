// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QStringList>

namespace zelvar::e2e {

/// The message box that is open; null when there is none.
QMessageBox* OpenBox();

/// Title, icon, text and button captions of a message box.
QStringList Describe(const QMessageBox& box);

}  // namespace zelvar::e2e
