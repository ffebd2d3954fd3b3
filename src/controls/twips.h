// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar {

/// The fixed geometry of a form is given in twips; 15 of them are a pixel at 96 dpi.
constexpr int kTwipsPerPixel = 15;

/// @param twips at least 0 @return the nearest number of pixels
constexpr int Pixels(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

}  // namespace zelvar
