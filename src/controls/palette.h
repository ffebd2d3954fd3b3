// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

#include <cstdint>

namespace zelvar {

/// @param bgr a colour as 0xBBGGRR
QColor ColourOf(std::uint32_t bgr);

/// Black or white, whichever can be read better on that ground.
QColor ReadableOn(const QColor& ground);

/// Writes a control's text in that colour. Where the theme's background would swallow it, the
/// control gets a light ground of its own. @param bgr a colour as 0xBBGGRR
void SetTextColour(QWidget* control, std::uint32_t bgr);

/// The ground of a control that was filled from a reply, as 0xBBGGRR.
constexpr std::uint32_t kColourGreen = 0x00FF00;

/// Paints the ground of a text field, a check box, an option button or a frame. What stands on it
/// is written in black, whatever the theme. @param bgr a light colour as 0xBBGGRR
void SetGroundColour(QWidget* control, std::uint32_t bgr);

/// Gives a control the colours of the system back.
void RestoreSystemColour(QWidget* control);

}  // namespace zelvar
