// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/fixed_pitch_font.h"

namespace zelvar {

QFont FixedPitchFont() {
    constexpr int kPoints = 9;
    QFont font(QStringLiteral("Lucida Console"), kPoints);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

}  // namespace zelvar
