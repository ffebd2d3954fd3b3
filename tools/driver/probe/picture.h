// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace zelvar::e2e {

/// Paints windows as they stand on a desktop: side by side at their own sizes, each in a plain
/// frame with its title, a message box in front of the window before it.
/// @param file PNG; overwritten
/// @param windows by object name; "box" is the message box that is open
/// @throws ProbeError when a window is not in view or the file cannot be written
void SavePicture(const QString& file, const QStringList& windows);

}  // namespace zelvar::e2e
