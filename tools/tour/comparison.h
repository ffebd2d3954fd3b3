// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

class QImage;

namespace zelvar::tour {

/// Whether two pictures show the same. They are looked at through a coarse grid, so that edges of
/// letters may be smoothed otherwise, but no control or word may be another one.
/// @return nothing when they do, else where they differ first
std::optional<std::string> Difference(const QImage& expected, const QImage& actual);

/// Compares pictures of a palette in two folders, if they were made under the same conditions.
/// @param names without palette and ".png"
/// @return one line per complaint
std::vector<std::string> ComparePictures(const std::string& expectedFolder,
                                         const std::string& actualFolder,
                                         const std::vector<std::string>& names,
                                         const std::string& palette);

}  // namespace zelvar::tour
