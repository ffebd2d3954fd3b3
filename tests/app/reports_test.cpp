// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

/// Polls that bring reports.
class Reports : public WindowFixture {
  protected:
    Reports() {
        OpenPort();
        timer.enabled = true;
    }

    /// One tick whose poll is answered by these data values.
    void Report(const std::vector<int>& values) {
        port.replies = {WireFrame(values)};
        Poll();
    }

    static std::string LogText(const char* dialog, const char* field) {
        QWidget* log = FindWindow(dialog);
        return log == nullptr ? "not loaded"
                              : FindBelow<QPlainTextEdit>(*log, field).toPlainText().toStdString();
    }
    static std::string Alarms() { return LogText("dlgAlarmLog", "txtAlarmLog"); }
    static std::string Messages() { return LogText("dlgMsgLog", "txtMsgLog"); }

    static void CloseByUser(const char* dialog) {
        FindWindow(dialog)->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(Reports, OvercurrentIsLoggedAndTheLogShown) {
    Report({0x33, 5});
    EXPECT_EQ(Alarms(), "Overcurrent block 133 detected .............\n");
    EXPECT_TRUE(FindWindow("dlgAlarmLog")->isVisible());
    EXPECT_FALSE(FindWindow("dlgAlarmLog")->isModal());
    Report({0x30, 0});
    EXPECT_EQ(Alarms(),
              "Overcurrent block 133 detected .............\n"
              "Overcurrent block 0 .............. released\n");
    EXPECT_TRUE(timer.enabled);
}

TEST_F(Reports, EveryOvercurrentBringsTheAlarmLogBackIntoViewWithoutTakingTheKeyboard) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Report({0x33, 5});
    QWidget* log = FindWindow("dlgAlarmLog");
    log->showMinimized();
    Report({0x31, 5});
    EXPECT_TRUE(log->isVisible());
    EXPECT_FALSE(log->isMinimized());
}

TEST_F(Reports, AClosedAlarmLogIsCreatedAnewAndEmpty) {
    Report({0x33, 5});
    CloseByUser("dlgAlarmLog");
    EXPECT_EQ(FindWindow("dlgAlarmLog"), nullptr);
    Report({0x31, 5});
    EXPECT_EQ(Alarms(), "Overcurrent block 133 .............. released\n");
    EXPECT_TRUE(FindWindow("dlgAlarmLog")->isVisible());
}

TEST_F(Reports, TheMessageLogIsCreatedHiddenAndKeepsItsTextUntilItIsShown) {
    Report({0x33, 5});
    ASSERT_NE(FindWindow("dlgMsgLog"), nullptr);
    EXPECT_FALSE(FindWindow("dlgMsgLog")->isVisible());
    EXPECT_EQ(Messages(), ">> 28 D8                       << 0A B3 85 BE\n");
    DoubleClick("lblCom");
    EXPECT_TRUE(FindWindow("dlgMsgLog")->isVisible());
    EXPECT_EQ(Messages(), ">> 28 D8                       << 0A B3 85 BE\n");
}

TEST_F(Reports, AClosedMessageLogIsCreatedAnewHiddenAndEmpty) {
    DoubleClick("lblCom");
    Click("cmdReset");
    CloseByUser("dlgMsgLog");
    EXPECT_EQ(FindWindow("dlgMsgLog"), nullptr);
    Click("cmdReset");
    EXPECT_EQ(Messages(), ">> 6A 81 80 95                 << 08 F8\n");
    EXPECT_FALSE(FindWindow("dlgMsgLog")->isVisible());
}

TEST_F(Reports, PollsWithoutDataDoNotEvenCreateTheMessageLog) {
    Report({});
    EXPECT_EQ(FindWindow("dlgMsgLog"), nullptr);
}

TEST_F(Reports, ClearLogEmptiesItsOwnWindowOnly) {
    Report({0x33, 5});
    DoubleClick("lblCom");
    QTest::mouseClick(&FindBelow<QPushButton>(*FindWindow("dlgAlarmLog"), "cmdClear"),
                      Qt::LeftButton);
    EXPECT_EQ(Alarms(), "");
    EXPECT_NE(Messages(), "");
    Report({0x33, 6});
    QTest::mouseClick(&FindBelow<QPushButton>(*FindWindow("dlgMsgLog"), "cmdClear"),
                      Qt::LeftButton);
    EXPECT_EQ(Messages(), "");
    EXPECT_EQ(Alarms(), "Overcurrent block 134 detected .............\n");
}

struct SpeedRow {
    const char* name;
    const char* wanted;
    std::vector<int> report;
    /// Empty when the report is dropped.
    const char* shown;
};

class BlockSpeeds : public Reports, public ::testing::WithParamInterface<SpeedRow> {};

TEST_P(BlockSpeeds, AreShownForTheChosenBlockOnly) {
    Find<QLineEdit>("txtTestBlock").setText(QString::fromUtf8(GetParam().wanted));
    const std::string before = TextOf("lblTestAnalogSpeed");
    Report(GetParam().report);
    const std::string shown = GetParam().shown;
    EXPECT_EQ(TextOf("lblTestAnalogSpeed"), shown.empty() ? before : shown);
    EXPECT_TRUE(messageBox.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BlockSpeeds,
    ::testing::Values(SpeedRow{"Forward", "5", {0x22, 5, 0x4C}, ">>12"},
                      SpeedRow{"Backward", "5", {0x22, 5, 0x0C}, "<<12"},
                      SpeedRow{"HighBlock", "255", {0x23, 127, 0x7F}, ">>63"},
                      SpeedRow{"AnotherBlock", "5", {0x22, 6, 0x4C}, ""},
                      SpeedRow{"HighBitDiffers", "5", {0x23, 5, 0x4C}, ""},
                      SpeedRow{"EmptyFieldTakesBlockZero", "", {0x22, 0, 0x01}, "<<1"},
                      SpeedRow{"EmptyFieldDropsTheOthers", "", {0x22, 1, 0x01}, ""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(Reports, APollWithoutReplyIsToldOnceAndPollingStopsUntilACommandSucceeds) {
    port.replies = {Bytes{}};
    Poll();
    Poll();
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(port.sent.size(), 1U);
    EXPECT_EQ(Messages(), "\n");
    Click("cmdReset");
    EXPECT_TRUE(timer.enabled);
}

}  // namespace
}  // namespace zelvar::testing
