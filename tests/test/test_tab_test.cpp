// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/test_tab.h"

#include <QGroupBox>
#include <QScrollArea>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <algorithm>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

using TestTabTest = DriveFixture;

TEST_F(TestTabTest, LinksBlocks) {
    OpenPort();
    SetText("txtTestLink(0)", "3");
    SetText("txtTestLink(1)", "4");
    Click("CommandTestLink(0)");
    SetText("txtTestLink(0)", "130");
    SetText("txtTestLink(1)", "200");
    Click("CommandTestLink(1)");
    EXPECT_EQ(TakeSent(), (Sent{{58, 3, 2, 4}, {59, 2, 7, 72}}));
}

TEST_F(TestTabTest, UnlinksTheFirstBlock) {
    OpenPort();
    SetText("txtTestLink(0)", "10");
    SetText("txtTestLink(1)", "99");
    Click("CommandTestLink(2)");
    Click("chkTestUnlinkZero");
    Click("CommandTestLink(3)");
    Click("CommandTestLink(2)");
    EXPECT_EQ(TakeSent(), (Sent{{56, 10, 0}, {56, 10, 6}, {56, 10, 2}}));
}

TEST_F(TestTabTest, ClearingABlockPutsTheControlsToRestAndSendsOneCommand) {
    OpenPort();
    SetText("txtTestBlock", "129");
    Slider("AnalogSpeed").setValue(12);
    Slider("DCCSpeed").setValue(7);
    Slider("MCCspeed").setValue(3);
    Box("CheckAnalogDirection").setChecked(false);
    Box("CheckAnalogLight").setChecked(true);
    Box("CheckDCCDirection").setChecked(false);
    for (int i = 0; i < 29; ++i) {
        Box(("Check_Pattern(" + std::to_string(i) + ")").c_str()).setChecked(true);
    }
    TakeSent();
    Click("CommandTestClearBlock");
    EXPECT_EQ(TakeSent(), (Sent{{63, 1, 18}}));
    EXPECT_EQ(Slider("AnalogSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
    EXPECT_EQ(Slider("MCCspeed").value(), 3) << "MCC knows no block";
    EXPECT_EQ(TextOf("lblTestAnalogSpeed"), "---");
    EXPECT_TRUE(Box("CheckAnalogDirection").isChecked());
    EXPECT_FALSE(Box("CheckAnalogLight").isChecked());
    EXPECT_TRUE(Box("CheckDCCDirection").isChecked());
    for (int i = 0; i < 29; ++i) {
        EXPECT_FALSE(Box(("Check_Pattern(" + std::to_string(i) + ")").c_str()).isChecked()) << i;
    }
    Slider("AnalogSpeed").setValue(1);
    EXPECT_EQ(TakeSent(), (Sent{{35, 1, 65}})) << "speeds are sent again";
}

TEST_F(TestTabTest, AValueOnItsWayIsNotSentAfterABlockIsCleared) {
    OpenPort();
    SetText("txtTestBlock", "129");
    SetText("txtTestAcceleration", "10");
    StepByKey("DCCSpeed");
    StepByKey("AnalogSpeed");
    Click("CommandTestClearBlock");
    Settle();
    EXPECT_EQ(TakeSent(), (Sent{{63, 1, 18}}));
    EXPECT_EQ(Slider("AnalogSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
}

TEST_F(TestTabTest, TheSlidersStartAtTheirRangesAndSteps) {
    const struct {
        const char* name;
        int maximum;
    } kRows[] = {{"AnalogSpeed", 63}, {"DCCSpeed", 28}, {"MCCspeed", 15}};
    for (const auto& row : kRows) {
        const QSlider& slider = Slider(row.name);
        EXPECT_EQ(slider.minimum(), 0) << row.name;
        EXPECT_EQ(slider.maximum(), row.maximum) << row.name;
        EXPECT_EQ(slider.value(), 0) << row.name;
        EXPECT_EQ(slider.singleStep(), 1) << row.name;
        EXPECT_EQ(slider.pageStep(), 5) << row.name;
    }
}

TEST_F(TestTabTest, WithThePortClosedClearingABlockResetsNothing) {
    Slider("AnalogSpeed").setValue(12);
    Box("CheckAnalogLight").setChecked(true);
    Box("Check_Pattern(28)").setChecked(true);
    messageBox.shown.clear();
    Click("CommandTestClearBlock");
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider("AnalogSpeed").value(), 12);
    EXPECT_TRUE(Box("CheckAnalogLight").isChecked());
    EXPECT_TRUE(Box("Check_Pattern(28)").isChecked());
}

TEST_F(TestTabTest, TheMccPageHidesTheBlockControlsAndMovesNothing) {
    auto& pages = Find<QTabWidget>("SSTab2");
    ShowTabOf(pages);
    const char* const kBlockControls[] = {"lblTestBlock", "txtTestBlock", "UpDown_Block",
                                          "CommandTestClearBlock"};
    const QRect before = pages.geometry();
    const auto expectVisible = [&](bool visible) {
        for (const char* control : kBlockControls) {
            EXPECT_EQ(Find<QWidget>(control).isVisible(), visible) << control;
        }
    };
    expectVisible(true);
    QTest::keyClick(pages.tabBar(), Qt::Key_Right);
    EXPECT_EQ(pages.tabText(pages.currentIndex()), QStringLiteral("DCC"));
    expectVisible(true);
    QTest::keyClick(pages.tabBar(), Qt::Key_Right);
    EXPECT_EQ(pages.tabText(pages.currentIndex()), QStringLiteral("MCC"));
    expectVisible(false);
    QTest::qWait(0);
    EXPECT_EQ(pages.geometry(), before);
    pages.setCurrentIndex(0);
    EXPECT_EQ(pages.tabText(0), QStringLiteral("Analog"));
    expectVisible(true);
}

TEST_F(TestTabTest, EveryPageFitsAWindowOf1000By720WithoutScrolling) {
    auto& pages = Find<QTabWidget>("SSTab2");
    ShowTabOf(pages);
    EXPECT_TRUE(window->findChildren<QScrollArea*>().empty());
    for (const bool byModule : {false, true}) {
        Box("chkTestJS70selectmodule").setChecked(byModule);
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentIndex(page);
            Settle();
            const QSize needed = window->minimumSizeHint().expandedTo(window->size());
            EXPECT_LE(needed.width(), 1000) << page << " by module: " << byModule;
            EXPECT_LE(needed.height(), 720) << page << " by module: " << byModule;
        }
    }
}

TEST_F(TestTabTest, EmergencyStopsAreLargeAndRedWithReadableText) {
    for (const char* name : {"cmdEstopAnalog", "cmdEstopDCC", "cmdEstopMCC"}) {
        auto& button = Find<QPushButton>(name);
        EXPECT_EQ(button.text(), QStringLiteral("E-Stop!"));
        EXPECT_GE(button.minimumHeight(), 40);
        const QColor ground = button.palette().color(QPalette::Button);
        EXPECT_GT(ground.red(), 2 * (ground.green() + ground.blue()));
        EXPECT_EQ(button.palette().color(QPalette::ButtonText), QColor(Qt::white));
        ShowTabOf(button);
        // Left of the text; the style lightens the ground.
        const QColor painted = button.grab().toImage().pixelColor(12, button.height() / 2);
        EXPECT_GT(painted.red(), 100) << name;
        EXPECT_GT(painted.red(), 3 * std::max(painted.green(), painted.blue())) << name;
    }
}

struct Guard {
    const char* name;
    const char* button;
};

void PrintTo(const Guard& row, std::ostream* out) {
    *out << row.button;
}

class ClosedPort : public DriveFixture, public ::testing::WithParamInterface<Guard> {};

TEST_P(ClosedPort, TellsTheUserOnceAndSendsNothing) {
    Click(GetParam().button);
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_TRUE(port.written.empty());
}

INSTANTIATE_TEST_SUITE_P(
    EveryButton, ClosedPort,
    ::testing::Values(Guard{"SetHfi", "CommandSetHFI"}, Guard{"EstopAnalog", "cmdEstopAnalog"},
                      Guard{"Functions0", "Command1(0)"}, Guard{"Functions1", "Command1(1)"},
                      Guard{"Functions2", "Command1(2)"}, Guard{"Functions3", "Command1(3)"},
                      Guard{"Functions4", "Command1(4)"}, Guard{"EstopDcc", "cmdEstopDCC"},
                      Guard{"MccFunctions", "cmdTestMCCfunction"}, Guard{"EstopMcc", "cmdEstopMCC"},
                      Guard{"Straight", "cmdTestJS70(0)"}, Guard{"Thrown", "cmdTestJS70(1)"},
                      Guard{"Aspect", "cmdTestYR70"}, Guard{"Output", "cmdTestGW70"},
                      Guard{"Link", "CommandTestLink(0)"},
                      Guard{"LinkInverted", "CommandTestLink(1)"},
                      Guard{"UnlinkDown", "CommandTestLink(2)"},
                      Guard{"UnlinkUp", "CommandTestLink(3)"},
                      Guard{"ClearBlock", "CommandTestClearBlock"}),
    [](const auto& row) { return row.param.name; });

class ClosedPortSliders : public DriveFixture, public ::testing::WithParamInterface<Guard> {};

TEST_P(ClosedPortSliders, TellTheUserOnceForEachNewValue) {
    Slider(GetParam().button).setValue(5);
    EXPECT_EQ(messageBox.shown, kSelectPort);
    Slider(GetParam().button).setValue(5);
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider(GetParam().button).value(), 5);
    EXPECT_TRUE(port.written.empty());
}

INSTANTIATE_TEST_SUITE_P(All, ClosedPortSliders,
                         ::testing::Values(Guard{"Analog", "AnalogSpeed"}, Guard{"Dcc", "DCCSpeed"},
                                           Guard{"Mcc", "MCCspeed"}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::testing
