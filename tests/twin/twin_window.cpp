// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_window.h"

#include "test/locomotives/drive_fixture.h"

namespace zelvar::twin {

TwinWindow::TwinWindow() {
    ShowWindowOn(port);
    Choose("cboPort", std::to_string(TwinPort::kNumber));
    EXPECT_TRUE(port.IsOpen());
    // Nothing is sent before the first command, and the Stop box starts ticked.
    Tick("Check_Stop", false);
}

void TwinWindow::TearDown() {
    port.ExpectNothingMisunderstood();
    EXPECT_EQ(messageBox.shown, expectedBoxes);
}

void TwinWindow::RequestStatus(bool classic) {
    auto& button = Find<QAbstractButton>("cmdStatus");
    QTest::mouseClick(&button, Qt::LeftButton, classic ? Qt::ShiftModifier : Qt::NoModifier);
    for (const char* view : {"dlgZelvarStatus", "dlgZelvarStatus44"}) {
        if (QWidget* shown = testing::FindWindow(view)) {
            shown->hide();
        }
    }
    window->activateWindow();
    port.TakeCommands();
}

}  // namespace zelvar::twin
