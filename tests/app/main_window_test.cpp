// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/main_window.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

using MainWindowTest = WindowFixture;
using Requests = std::vector<std::vector<int>>;

TEST_F(MainWindowTest, IsTitledWithNameAndVersionAlone) {
    EXPECT_EQ(window->objectName(), QStringLiteral("frmZelvarConfig"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("ZelvarConfig 1.40B"));
    EXPECT_TRUE(QGuiApplication::applicationDisplayName().isEmpty() ||
                QGuiApplication::applicationDisplayName() == QStringLiteral("ZelvarConfig"));
}

TEST_F(MainWindowTest, StartsWithItsCaptions) {
    EXPECT_EQ(TextOf("lblCom"), "CommPort");
    EXPECT_EQ(TextOf("optBaud(0)"), "19k2");
    EXPECT_EQ(TextOf("optBaud(1)"), "38k4");
    EXPECT_EQ(TextOf("Check_Stop"), "Stop");
    EXPECT_EQ(TextOf("cmdReset"), "Reset Fault");
    EXPECT_EQ(TextOf("cmdRefresh"), "Refresh");
    EXPECT_EQ(TextOf("cmdStatus"), "Status");
    EXPECT_EQ(Find("cmdStatus").toolTip(), QStringLiteral("Shift+Click for Classic View"));
}

TEST_F(MainWindowTest, StartsWithStopTickedAndTheBaudRatesHidden) {
    EXPECT_TRUE(Find<QCheckBox>("Check_Stop").isChecked());
    EXPECT_FALSE(Find("optBaud(0)").isVisible());
    EXPECT_FALSE(Find("optBaud(1)").isVisible());
    EXPECT_TRUE(Find<QRadioButton>("optBaud(0)").isChecked());
    EXPECT_FALSE(Find<QRadioButton>("optBaud(1)").isChecked());
}

TEST_F(MainWindowTest, StartsDisconnectedWithPollingOff) {
    EXPECT_FALSE(port.IsOpen());
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(port.baud, 19200);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), "System Status = Disconnected");
    EXPECT_EQ(TextOf("lblBarStatus"), "System Status = Disconnected");
    EXPECT_EQ(TextOf("lblBarDevice"), "No port open");
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_TRUE(port.written.empty());
}

TEST_F(MainWindowTest, StartsWithEmptyModuleLists) {
    EXPECT_EQ(Find<QComboBox>("cboVD").count(), 0);
    EXPECT_EQ(Find<QComboBox>("cboJS").count(), 0);
}

TEST_F(MainWindowTest, HasFourTabsInTheirOrder) {
    auto& tabs = Find<QTabWidget>("SSTab1");
    std::vector<std::string> titles;
    for (int i = 0; i < tabs.count(); ++i) {
        titles.push_back(tabs.tabText(i).toStdString());
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"VDxx / QLRX-s", "JS70", "KB-x", "TEST"}));
}

TEST_F(MainWindowTest, StartsLargeEnoughForEveryTab) {
    auto& tabs = Find<QTabWidget>("SSTab1");
    for (int i = 0; i < tabs.count(); ++i) {
        tabs.setCurrentIndex(i);
        const QWidget& page = *tabs.widget(i);
        const QSize needed = page.sizeHint();
        EXPECT_GE(page.width(), needed.width()) << tabs.tabText(i).toStdString();
        EXPECT_GE(page.height(), needed.height()) << tabs.tabText(i).toStdString();
    }
}

TEST_F(MainWindowTest, TheControlsOutsideTheTabsLieOutsideAndTheStatusLineOnTheLast) {
    auto& tabs = Find<QTabWidget>("SSTab1");
    for (const char* name :
         {"lblCom", "cboPort", "Check_Stop", "cmdReset", "cmdRefresh", "cmdStatus"}) {
        EXPECT_FALSE(tabs.isAncestorOf(&Find(name))) << name;
        EXPECT_TRUE(Find(name).isVisible()) << name;
    }
    EXPECT_TRUE(tabs.widget(3)->isAncestorOf(&Find("lblTestSystemStatus")));
}

TEST_F(MainWindowTest, NoSecondaryWindowIsLoadedAtTheStart) {
    for (const char* name : {"dlgMsgLog", "dlgAlarmLog", "dlgZelvarStatus", "dlgZelvarStatus44"}) {
        EXPECT_EQ(FindWindow(name), nullptr) << name;
    }
}

TEST_F(MainWindowTest, EveryControlHasWordsForAssistiveTechnology) {
    for (const char* name : {"lblCom", "cboPort", "optBaud(0)", "optBaud(1)", "Check_Stop",
                             "cmdReset", "cmdRefresh", "cmdStatus", "SSTab1"}) {
        EXPECT_FALSE(Find(name).accessibleName().isEmpty()) << name;
    }
}

TEST_F(MainWindowTest, ResetFaultSendsOneAndZero) {
    OpenPort();
    Click("cmdReset");
    EXPECT_EQ(port.SentValues(), (Requests{{1, 0}}));
    // Stop is ticked, so the header asks for it.
    EXPECT_EQ(port.written, (Bytes{0x2A, 0x81, 0x80, 0xD5}));
    EXPECT_EQ(TextOf("lblTestSystemStatus"), "System Status = Stop");
}

TEST_F(MainWindowTest, WithoutAPortCommandsAskForOne) {
    Click("cmdReset");
    Click("cmdStatus");
    EXPECT_EQ(messageBox.shown, (std::vector{Exclamation("Please select Comm-Port"),
                                             Exclamation("Please select Comm-Port")}));
    EXPECT_TRUE(port.written.empty());
}

struct StateRow {
    const char* name;
    bool stop;
    int header;
    const char* text;
    QRgb colour;
};

class StatusLines : public WindowFixture, public ::testing::WithParamInterface<StateRow> {};

TEST_P(StatusLines, FollowEveryReply) {
    OpenPort();
    Find<QCheckBox>("Check_Stop").setChecked(GetParam().stop);
    port.replies = {WireFrame({}, GetParam().header)};
    Click("cmdReset");
    for (const char* name : {"lblTestSystemStatus", "lblBarStatus"}) {
        EXPECT_EQ(TextOf(name), GetParam().text);
        EXPECT_EQ(Find(name).palette().color(QPalette::WindowText), QColor(GetParam().colour));
    }
}

INSTANTIATE_TEST_SUITE_P(
    States, StatusLines,
    ::testing::Values(StateRow{"Run", false, 0, "System Status = Run", 0x0000FF},
                      StateRow{"Fault", false, 0x20, "System Status = Fault", 0xFF0000},
                      StateRow{"Stop", true, 0x20, "System Status = Stop", 0x000000}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(MainWindowTest, TheStopBoxAsksForStopWithTheNextFrame) {
    OpenPort();
    Click("Check_Stop");
    Click("cmdReset");
    EXPECT_EQ(port.sent.back().Header() & 0x20, 0);
    Click("Check_Stop");
    Click("cmdReset");
    EXPECT_EQ(port.sent.back().Header() & 0x20, 0x20);
}

TEST_F(MainWindowTest, ClosingItUnloadsTheSecondaryWindowsAndLeavesThePortToTheSystem) {
    OpenPort();
    port.replies = {WireFrame({0x33, 5})};
    Click("cmdReset");
    ASSERT_NE(FindWindow("dlgMsgLog"), nullptr);
    ASSERT_NE(FindWindow("dlgAlarmLog"), nullptr);
    window->close();
    EXPECT_EQ(FindWindow("dlgMsgLog"), nullptr);
    EXPECT_EQ(FindWindow("dlgAlarmLog"), nullptr);
    EXPECT_TRUE(port.history.empty());
}

}  // namespace
}  // namespace zelvar::testing
