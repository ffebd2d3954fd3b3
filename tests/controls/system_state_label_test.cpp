// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/system_state_label.h"

#include <gtest/gtest.h>

namespace zelvar::testing {
namespace {

struct StateRow {
    const char* name;
    SystemState state;
    const char* text;
    /// 0xRRGGBB
    QRgb colour;
};

class SystemStateLabel : public ::testing::TestWithParam<StateRow> {};

TEST_P(SystemStateLabel, HasItsTextAndColour) {
    QLabel label;
    ShowSystemStateIn(label, GetParam().state);
    EXPECT_EQ(label.text().toStdString(), GetParam().text);
    EXPECT_EQ(label.accessibleName(), label.text());
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(GetParam().colour));
}

INSTANTIATE_TEST_SUITE_P(
    States, SystemStateLabel,
    ::testing::Values(StateRow{"Disconnected", SystemState::Disconnected,
                               "System Status = Disconnected", 0x000000},
                      StateRow{"Run", SystemState::Run, "System Status = Run", 0x0000FF},
                      StateRow{"Stop", SystemState::Stop, "System Status = Stop", 0x000000},
                      StateRow{"Fault", SystemState::Fault, "System Status = Fault", 0xFF0000}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
