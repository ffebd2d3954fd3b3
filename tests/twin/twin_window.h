// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "support/window_fixture.h"
#include "twin/twin_layout.h"
#include "twin/twin_port.h"
#include "twin/unit_image.h"

namespace zelvar::twin {

/// The main window on a line to the simulated unit, its port open.
class TwinWindow : public testing::WindowHands {
  protected:
    TwinWindow();
    ~TwinWindow() override { window.reset(); }
    void TearDown() override;

    /// Presses Status, with Shift for the Classic View; the views stay out of the way.
    void RequestStatus(bool classic = false);

    /// What something done with the forms has changed in the unit.
    template <typename Act>
    Changes EffectOf(const Act& act) {
        const UnitImage before(port.state());
        act();
        return before.ChangesTo(port.state());
    }
    Changes EffectOfClick(const std::string& button) {
        return EffectOf([&] { Click(button); });
    }

    TwinPort port{clock, EveryKind()};
    std::vector<testing::ShownBox> expectedBoxes;
};

/// The name of a member of a control array: "txtAL(0)".
inline std::string Member(const std::string& array, int index) {
    return array + '(' + std::to_string(index) + ')';
}

/// The name of a table's row, for its test.
template <typename Row>
std::string NameOf(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

}  // namespace zelvar::twin
