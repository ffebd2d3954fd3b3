// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QImage>
#include <QStringList>

namespace zelvar::tour {

/// Where two pictures differ: the first one, faded, with the pixels red that are different in the
/// second one or that only one of them has.
QImage Differences(const QImage& expected, const QImage& actual);

/// Compares the pictures of a palette in a folder with those of the same names in another one.
/// Where one differs, a picture of the differences is written beside it.
/// @param palette "light" or "dark"
/// @return one line for each picture that is missing or differs
QStringList ComparePictures(const QDir& expected, const QDir& actual, const QString& palette);

}  // namespace zelvar::tour
