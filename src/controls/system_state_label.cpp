// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/system_state_label.h"

#include <array>

#include "controls/palette.h"

namespace zelvar {

namespace {

struct StateRow {
    const char* text;
    /// As 0xBBGGRR.
    std::uint32_t colour;
};

constexpr std::uint32_t kBlack = 0x000000;
constexpr std::uint32_t kRed = 0x0000FF;
constexpr std::uint32_t kBlue = 0xFF0000;

/// In the order of `SystemState`.
constexpr std::array<StateRow, 4> kStates{{
    {"System Status = Disconnected", kBlack},
    {"System Status = Run", kBlue},
    {"System Status = Stop", kBlack},
    {"System Status = Fault", kRed},
}};

}  // namespace

void ShowSystemStateIn(QLabel& label, SystemState state) {
    const StateRow& row = kStates.at(static_cast<std::size_t>(state));
    const QString text = QString::fromLatin1(row.text);
    label.setText(text);
    label.setAccessibleName(text);
    SetTextColour(&label, row.colour);
}

}  // namespace zelvar
