// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_window.h"

#include "test/locomotives/drive_fixture.h"

namespace zelvar::twin {

TwinWindow::TwinWindow() {
    ShowWindowOn(port);
    Choose("cboPort", QString::number(TwinPort::kNumber));
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

void TwinWindow::Tick(const std::string& box, bool ticked) {
    if (IsTicked(box) != ticked) {
        Press(box);
    }
    EXPECT_EQ(IsTicked(box), ticked) << box;
}

void TwinWindow::SlideTo(const char* slider, int value) {
    auto& control = Find<QSlider>(slider);
    ShowTabOf(control);
    control.setFocus();
    while (control.value() != value) {
        const bool up = control.value() < value;
        const bool far = std::abs(control.value() - value) >= control.pageStep();
        QTest::keyClick(&control, far ? (up ? Qt::Key_PageUp : Qt::Key_PageDown)
                                      : (up ? Qt::Key_Right : Qt::Key_Left));
    }
    testing::Settle();
}

void TwinWindow::Enter(const std::string& field, int number) {
    Type(field.c_str(), QString::number(number));
}

bool TwinWindow::IsGreen(const std::string& name) {
    auto& control = Find<QWidget>(name.c_str());
    const bool isField = qobject_cast<QLineEdit*>(&control) != nullptr;
    return control.palette().color(isField ? QPalette::Base : QPalette::Window) ==
           QColor(0, 255, 0);
}

void TwinWindow::Poll(int ticks) {
    for (int i = 0; i < ticks; ++i) {
        WindowHands::Tick();
    }
}

}  // namespace zelvar::twin
