// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/press_button.h"

#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zelvar::testing {
namespace {

/// Whether each press was one of the left button with Shift alone.
using Presses = std::vector<bool>;

class PressButtonTest : public ::testing::Test {
  protected:
    PressButtonTest() {
        QObject::connect(&button, &PressButton::mouseDown, &button,
                         [this](bool shiftLeft) { presses.push_back(shiftLeft); });
        button.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&button));
    }

    PressButton button{QStringLiteral("Status")};
    Presses presses;
};

struct PressRow {
    const char* name;
    Qt::MouseButton mouseButton;
    Qt::KeyboardModifiers modifiers;
    bool shiftLeft;
};

class MousePresses : public PressButtonTest, public ::testing::WithParamInterface<PressRow> {};

TEST_P(MousePresses, AreReportedAndShiftWithTheLeftButtonAloneStandsOut) {
    QTest::mousePress(&button, GetParam().mouseButton, GetParam().modifiers);
    EXPECT_EQ(presses, Presses{GetParam().shiftLeft});
    QTest::mouseRelease(&button, GetParam().mouseButton, GetParam().modifiers);
    EXPECT_EQ(presses.size(), 1U) << "the release acted, too";
}

INSTANTIATE_TEST_SUITE_P(
    Mouse, MousePresses,
    ::testing::Values(
        PressRow{"Left", Qt::LeftButton, Qt::NoModifier, false},
        PressRow{"Right", Qt::RightButton, Qt::NoModifier, false},
        PressRow{"Middle", Qt::MiddleButton, Qt::NoModifier, false},
        PressRow{"Other", Qt::BackButton, Qt::NoModifier, false},
        PressRow{"ShiftLeft", Qt::LeftButton, Qt::ShiftModifier, true},
        PressRow{"CtrlLeft", Qt::LeftButton, Qt::ControlModifier, false},
        PressRow{"AltLeft", Qt::LeftButton, Qt::AltModifier, false},
        PressRow{"ShiftCtrlLeft", Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, false},
        PressRow{"ShiftAltLeft", Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier, false},
        PressRow{"ShiftRight", Qt::RightButton, Qt::ShiftModifier, false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(PressButtonTest, KeysCountAsAPlainLeftPress) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        presses.clear();
        QTest::keyClick(&button, key);
        EXPECT_EQ(presses, Presses{false}) << key;
    }
}

TEST_F(PressButtonTest, KeysWithShiftCountAsAPlainLeftPressToo) {
    QTest::keyClick(&button, Qt::Key_Space, Qt::ShiftModifier);
    QTest::keyClick(&button, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(presses, (Presses{false, false}));
}

TEST_F(PressButtonTest, OtherKeysDoNothing) {
    QTest::keyClick(&button, Qt::Key_A);
    QTest::keyClick(&button, Qt::Key_Escape);
    EXPECT_TRUE(presses.empty());
}

TEST_F(PressButtonTest, AHeldEnterKeyActsOnce) {
    QTest::keyPress(&button, Qt::Key_Return);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&button, &repeat);
    QTest::keyRelease(&button, Qt::Key_Return);
    EXPECT_EQ(presses.size(), 1U);
}

TEST_F(PressButtonTest, IsShownAsPressedWhileItWorksAndNotAfterwards) {
    bool downWhileWorking = false;
    QObject::connect(&button, &PressButton::mouseDown, &button,
                     [&] { downWhileWorking = button.isDown(); });
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_TRUE(downWhileWorking);
    EXPECT_FALSE(button.isDown());
}

TEST_F(PressButtonTest, DisabledItDoesNothing) {
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(presses.empty());
}

}  // namespace
}  // namespace zelvar::testing
