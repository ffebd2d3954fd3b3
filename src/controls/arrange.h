// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QWidget>

#include <initializer_list>

namespace zelvar {

/// The fixed geometry of a form is given in twips; 15 of them are a pixel at 96 dpi.
constexpr int kTwipsPerPixel = 15;

/// @param twips at least 0 @return the nearest number of pixels
constexpr int Pixels(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

/// Lays out controls side by side and leaves the space to their right free.
QLayout* Row(std::initializer_list<QWidget*> controls);

/// Sets the order in which the keyboard goes through controls.
void SetTabOrder(std::initializer_list<QWidget*> controls);

/// Keeps the place of a control while it is hidden, so that nothing else moves.
void KeepPlaceWhenHidden(QWidget* control);

}  // namespace zelvar
