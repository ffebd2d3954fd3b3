// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QRadioButton>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

using History = std::vector<std::string>;

const std::string kDisconnected = "System Status = Disconnected";

class PortChoice : public WindowFixture {
  protected:
    std::vector<std::string> Entries() {
        auto& list = Find<QComboBox>("cboPort");
        std::vector<std::string> entries;
        for (int i = 0; i < list.count(); ++i) {
            entries.push_back(list.itemText(i).toStdString());
        }
        return entries;
    }

    /// Opens port 1 and polls once.
    void StartPolling() {
        OpenPort();
        Click("cmdReset");
        ASSERT_TRUE(timer.enabled);
    }
};

TEST_F(PortChoice, TheListHoldsThePortsThatCanBeOpenedAndNoneIsSelected) {
    EXPECT_EQ(Entries(), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(Find<QComboBox>("cboPort").currentIndex(), -1);
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(PortChoice, EachEntryTellsItsDeviceAndTheListWhatToDo) {
    auto& list = Find<QComboBox>("cboPort");
    const auto description = [&list] { return list.itemData(1, Qt::ToolTipRole).toString(); };
    EXPECT_TRUE(description().startsWith(QStringLiteral("/dev/port2")));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return description() == QStringLiteral("/dev/port2 (Adapter)"); }));
    EXPECT_FALSE(list.toolTip().startsWith(QStringLiteral("No serial port")));
    port.openable = {};
    Click("cmdRefresh");
    EXPECT_TRUE(list.toolTip().startsWith(QStringLiteral("No serial port can be opened.")));
    EXPECT_TRUE(list.toolTip().contains(QStringLiteral("press Refresh")));
}

TEST_F(PortChoice, WithoutAnyPortTheListStaysEmptyAndCommandsAskForOne) {
    port.openable = {};
    Click("cmdRefresh");
    EXPECT_TRUE(Entries().empty());
    Click("cmdReset");
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")});
}

TEST_F(PortChoice, RefreshFindsNewPortsAndForgetsThoseInUse) {
    port.openable = {2, 16, 17};
    Click("cmdRefresh");
    EXPECT_EQ(Entries(), (std::vector<std::string>{"2", "16"}));
    EXPECT_EQ(Find<QComboBox>("cboPort").currentIndex(), -1);
}

TEST_F(PortChoice, RefreshClosesThePortAndSaysDisconnected) {
    StartPolling();
    Click("cmdRefresh");
    EXPECT_EQ(port.history.front(), "close");
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
    EXPECT_EQ(Find("lblTestSystemStatus").palette().color(QPalette::WindowText), QColor(0, 0, 0));
    EXPECT_EQ(TextOf("lblBarDevice"), "No port open");
}

TEST_F(PortChoice, RefreshLeavesTheTimerAndItsNextTickSwitchesItOff) {
    StartPolling();
    port.ForgetSent();
    Click("cmdRefresh");
    EXPECT_TRUE(timer.enabled);
    Poll();
    EXPECT_FALSE(timer.enabled);
    EXPECT_TRUE(port.written.empty());
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(PortChoice, ChoosingAPortOpensItAndSendsNothing) {
    port.history.clear();
    Choose("cboPort", "3");
    EXPECT_EQ(port.history, History{"open 3 19200"});
    EXPECT_FALSE(timer.enabled);
    EXPECT_TRUE(port.written.empty());
    EXPECT_EQ(TextOf("lblBarDevice"), "Port 3: /dev/port3, 19k2");
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
}

TEST_F(PortChoice, ChoosingTheOpenPortAgainReopensItAndLeavesPollingOff) {
    StartPolling();
    Choose("cboPort", "1");
    EXPECT_EQ(port.history, (History{"close", "open 1 19200"}));
    EXPECT_TRUE(port.IsOpen());
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
}

TEST_F(PortChoice, ChoosingAnotherPortClosesTheFirst) {
    StartPolling();
    Choose("cboPort", "2");
    EXPECT_EQ(port.history, (History{"close", "open 2 19200"}));
    EXPECT_FALSE(timer.enabled);
}

TEST_F(PortChoice, APortThatCannotBeOpenedIsToldAndStaysClosed) {
    StartPolling();
    port.openable = {1};
    Choose("cboPort", "2");
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Fout bij openen COM poort")});
    EXPECT_FALSE(port.IsOpen());
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
    EXPECT_EQ(TextOf("lblBarDevice"), "No port open");
}

TEST_F(PortChoice, TheToggleGoesOnAfterReopening) {
    StartPolling();
    Choose("cboPort", "1");
    Click("cmdReset");
    EXPECT_EQ(port.sent[0].Header() & 0x40, 0);
    EXPECT_EQ(port.sent[1].Header() & 0x40, 0x40);
}

class BaudChange : public PortChoice {
  protected:
    BaudChange() {
        DoubleClick("lblCom");
        port.history.clear();
    }
};

TEST_F(BaudChange, ADoubleClickOnCommPortShowsTheRatesAndTheMessageLog) {
    EXPECT_TRUE(Find("optBaud(0)").isVisible());
    EXPECT_TRUE(Find("optBaud(1)").isVisible());
    QWidget* log = FindWindow("dlgMsgLog");
    ASSERT_NE(log, nullptr);
    EXPECT_TRUE(log->isVisible());
    EXPECT_FALSE(log->isModal());
}

TEST_F(BaudChange, NothingHidesTheRatesAgain) {
    FindWindow("dlgMsgLog")->close();
    Click("cmdRefresh");
    DoubleClick("lblCom");
    EXPECT_TRUE(Find("optBaud(1)").isVisible());
}

TEST_F(BaudChange, WhileClosedItChangesTheSettingsOnly) {
    Click("optBaud(1)");
    EXPECT_TRUE(port.history.empty());
    EXPECT_FALSE(timer.enabled);
    Choose("cboPort", "1");
    EXPECT_EQ(port.history, History{"open 1 38400"});
}

TEST_F(BaudChange, WhilePollingItReopensAndGoesOnPolling) {
    StartPolling();
    const std::string before = TextOf("lblTestSystemStatus");
    Click("optBaud(1)");
    EXPECT_EQ(port.history, (History{"close", "open 1 38400"}));
    EXPECT_TRUE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), before);
    EXPECT_EQ(TextOf("lblBarDevice"), "Port 1: /dev/port1, 38k4");
}

TEST_F(BaudChange, WhileOpenWithoutPollingItReopensAndDoesNotPoll) {
    OpenPort();
    Click("optBaud(1)");
    EXPECT_EQ(port.history, (History{"close", "open 1 38400"}));
    EXPECT_FALSE(timer.enabled);
}

TEST_F(BaudChange, ChoosingTheChosenRateAgainReopensToo) {
    StartPolling();
    Click("optBaud(0)");
    EXPECT_EQ(port.history, (History{"close", "open 1 19200"}));
    EXPECT_TRUE(timer.enabled);
    Click("optBaud(1)");
    port.history.clear();
    Click("optBaud(1)");
    EXPECT_EQ(port.history, (History{"close", "open 1 38400"}));
}

TEST_F(BaudChange, TheArrowKeysChooseOnceEach) {
    OpenPort();
    Find("optBaud(0)").setFocus();
    QTest::keyClick(&Find("optBaud(0)"), Qt::Key_Right);
    EXPECT_EQ(port.history, (History{"close", "open 1 38400"}));
    EXPECT_TRUE(Find<QRadioButton>("optBaud(1)").isChecked());
}

TEST_F(BaudChange, WhenReopeningFailsThePortStaysClosedAndPollingOff) {
    StartPolling();
    port.openable = {};
    bool pollingWhileShown = true;
    messageBox.whileShown = [&] { pollingWhileShown = timer.enabled; };
    Click("optBaud(1)");
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Fout bij openen COM poort")});
    EXPECT_FALSE(pollingWhileShown);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
    EXPECT_EQ(TextOf("lblBarDevice"), "No port open");
}

class PortLoss : public PortChoice {};

TEST_F(PortLoss, WhileIdleIsShownWithoutABoxAndPollingIsOff) {
    StartPolling();
    port.ForgetSent();
    port.Vanish();
    port.onLost();
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
    EXPECT_EQ(TextOf("lblBarDevice"), "Connection to port 1 lost");
    EXPECT_TRUE(messageBox.shown.empty());
    Click("cmdReset");
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")});
    EXPECT_TRUE(port.written.empty());
}

TEST_F(PortLoss, WhilePollingIsToldOnce) {
    StartPolling();
    port.responder = [this](const SentFrame&) {
        port.Vanish();
        return Bytes{};
    };
    messageBox.whileShown = [this] { port.onLost(); };
    Poll();
    Poll();
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_FALSE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), kDisconnected);
}

TEST_F(PortLoss, DuringAStatusRequestIsToldOnceAndTheNextCommandAsksForAPort) {
    OpenPort();
    port.responder = [this](const SentFrame&) {
        port.Vanish();
        return Bytes{};
    };
    Click("cmdStatus");
    EXPECT_EQ(port.sent.size(), 1U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    Click("cmdStatus");
    EXPECT_EQ(messageBox.shown.back(), Exclamation("Please select Comm-Port"));
    EXPECT_EQ(port.sent.size(), 1U);
}

TEST_F(PortLoss, OnceTheDeviceIsBackRefreshAndChoosingThePortWorkAgain) {
    StartPolling();
    port.openable = {};
    port.Vanish();
    port.onLost();
    Click("cmdRefresh");
    EXPECT_TRUE(Entries().empty());
    port.openable = {1};
    Click("cmdRefresh");
    EXPECT_EQ(Entries(), std::vector<std::string>{"1"});
    Choose("cboPort", "1");
    EXPECT_TRUE(port.IsOpen());
    Click("cmdReset");
    EXPECT_TRUE(timer.enabled);
    EXPECT_EQ(TextOf("lblTestSystemStatus"), "System Status = Stop");
    EXPECT_TRUE(messageBox.shown.empty());
}

}  // namespace
}  // namespace zelvar::testing
