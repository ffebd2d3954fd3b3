// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

#include <cstdint>

namespace zelvar {

/// @param bgr a colour as 0xBBGGRR
QColor ColourOf(std::uint32_t bgr);

/// Black or white: the one with the better contrast on that background.
QColor ReadableOn(const QColor& ground);

/// Sets the colour of a control's text. Where the theme's background would make it unreadable, the
/// control gets a light background of its own. @param bgr a colour as 0xBBGGRR
void SetTextColour(QWidget* control, std::uint32_t bgr);

/// The background of a control that was filled from a reply, as 0xBBGGRR.
constexpr std::uint32_t kColourGreen = 0x00FF00;

/// Paints the background of a text field, a check box, an option button or a frame. Its text is
/// black in every theme. @param bgr a light colour as 0xBBGGRR
void SetGroundColour(QWidget* control, std::uint32_t bgr);

/// Restores the system colours of a control.
void RestoreSystemColour(QWidget* control);

}  // namespace zelvar
