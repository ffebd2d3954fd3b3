// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "link/link.h"
#include "link/services.h"
#include "support/doubles.h"
#include "support/recording_view.h"
#include "twin/twin_layout.h"
#include "twin/twin_port.h"
#include "twin/unit_image.h"

namespace zelvar::twin {

/// The program's link on a line to the simulated unit.
class TwinLink : public ::testing::Test {
  protected:
    TwinLink() { port.Open(TwinPort::kNumber, 19200); }

    void TearDown() override {
        port.ExpectNothingMisunderstood();
        EXPECT_EQ(messageBox.shown, expectedBoxes);
    }

    /// One exchange, which has to succeed.
    void Do(const Command& command) {
        reply = link.Transact(command);
        EXPECT_TRUE(reply.has_value());
    }

    /// The same; what it has changed in the unit.
    Changes EffectOf(const Command& command) {
        const UnitImage before(port.state());
        Do(command);
        return before.ChangesTo(port.state());
    }

    testing::FakeClock clock;
    testing::FakeTimer timer;
    TwinPort port{clock, EveryKind()};
    testing::FakeMessageBox messageBox;
    testing::FakeLinkView view;
    testing::FakeProgress progress;
    Link link{port, timer, clock, messageBox, view};
    Services services{link, messageBox, progress, clock};
    testing::RecordingView requestView;
    /// To the last `Do`.
    std::optional<Reply> reply;
    std::vector<testing::ShownBox> expectedBoxes;
};

/// The name of a table's row, for its test.
template <typename Row>
std::string NameOf(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

}  // namespace zelvar::twin
