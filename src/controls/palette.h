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

}  // namespace zelvar
