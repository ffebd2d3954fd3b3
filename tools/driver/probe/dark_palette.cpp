// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "dark_palette.h"

#include <QColor>

namespace zelvar::e2e {

namespace {

const QColor kText(240, 240, 240);
const QColor kFaintText(130, 130, 130);
const QColor kGround(50, 50, 50);
const QColor kField(36, 36, 36);
const QColor kAccent(48, 140, 198);
const QColor kLink(94, 178, 232);

// In per cent of the ground, as styles derive the edges of what they draw.
constexpr int kLight = 150;
constexpr int kMidlight = 120;
constexpr int kMid = 130;
constexpr int kDark = 150;

}  // namespace

QPalette DarkPalette() {
    QPalette palette(kText, kGround, kGround.lighter(kLight), kGround.darker(kDark),
                     kGround.darker(kMid), kText, Qt::white, kField, kGround);
    palette.setColor(QPalette::Midlight, kGround.lighter(kMidlight));
    palette.setColor(QPalette::AlternateBase, kGround.darker(kMid));
    palette.setColor(QPalette::ToolTipBase, kGround.lighter(kMidlight));
    palette.setColor(QPalette::ToolTipText, kText);
    palette.setColor(QPalette::PlaceholderText, kFaintText);
    palette.setColor(QPalette::Shadow, Qt::black);
    palette.setColor(QPalette::Highlight, kAccent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, kLink);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, kFaintText);
    }
    return palette;
}

}  // namespace zelvar::e2e
