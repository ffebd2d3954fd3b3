// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/press_button.h"

#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zelvar::testing {
namespace {

using Presses = std::vector<std::pair<int, int>>;

class PressButtonTest : public ::testing::Test {
  protected:
    PressButtonTest() {
        QObject::connect(&button, &PressButton::MouseDown, &button,
                         [this](int which, int shift) { presses.emplace_back(which, shift); });
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
    int button;
    int shift;
};

class MousePresses : public PressButtonTest, public ::testing::WithParamInterface<PressRow> {};

TEST_P(MousePresses, AreReportedWithButtonAndModifiers) {
    QTest::mousePress(&button, GetParam().mouseButton, GetParam().modifiers);
    EXPECT_EQ(presses, (Presses{{GetParam().button, GetParam().shift}}));
    QTest::mouseRelease(&button, GetParam().mouseButton, GetParam().modifiers);
    EXPECT_EQ(presses.size(), 1U) << "the release acted, too";
}

INSTANTIATE_TEST_SUITE_P(
    Mouse, MousePresses,
    ::testing::Values(
        PressRow{"Left", Qt::LeftButton, Qt::NoModifier, 1, 0},
        PressRow{"Right", Qt::RightButton, Qt::NoModifier, 2, 0},
        PressRow{"Middle", Qt::MiddleButton, Qt::NoModifier, 4, 0},
        PressRow{"Other", Qt::BackButton, Qt::NoModifier, 0, 0},
        PressRow{"ShiftLeft", Qt::LeftButton, Qt::ShiftModifier, 1, 1},
        PressRow{"CtrlLeft", Qt::LeftButton, Qt::ControlModifier, 1, 2},
        PressRow{"AltLeft", Qt::LeftButton, Qt::AltModifier, 1, 4},
        PressRow{"ShiftCtrlLeft", Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, 1, 3},
        PressRow{"ShiftAltLeft", Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier, 1, 5},
        PressRow{"ShiftRight", Qt::RightButton, Qt::ShiftModifier, 2, 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(PressButtonTest, KeysCountAsAPlainLeftPress) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        presses.clear();
        QTest::keyClick(&button, key);
        EXPECT_EQ(presses, (Presses{{1, 0}})) << key;
    }
}

TEST_F(PressButtonTest, KeysWithShiftCountAsAPlainLeftPressToo) {
    QTest::keyClick(&button, Qt::Key_Space, Qt::ShiftModifier);
    QTest::keyClick(&button, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(presses, (Presses{{1, 0}, {1, 0}}));
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
    QObject::connect(&button, &PressButton::MouseDown, &button,
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
