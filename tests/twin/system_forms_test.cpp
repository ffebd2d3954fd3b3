// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/described_layout.h"
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

constexpr std::uint32_t kLayouts = 10;

/// The views and windows around the main one.
class SystemForms : public TwinWindow {
  protected:
    QString FieldOf(const char* dialog, const std::string& field) {
        return testing::FindBelow<QLineEdit>(*testing::FindWindow(dialog), field.c_str()).text();
    }
    std::string New(const char* array, int index) {
        return FieldOf("dlgZelvarStatus44", Member(array, index)).toStdString();
    }
    std::string Classic(const char* array, int index) {
        return FieldOf("dlgZelvarStatus", Member(array, index)).toStdString();
    }
};

TEST_F(SystemForms, TheNewViewShowsEveryModuleOfTheUnit) {
    for (std::uint32_t seed = 0; seed < kLayouts; ++seed) {
        SCOPED_TRACE(seed);
        const DescribedLayout layout = AnyLayout(seed);
        port.Connect(layout.ForTheUnit());
        RequestStatus();
        EXPECT_EQ(FieldOf("dlgZelvarStatus44", "txtSysVer").toStdString(), layout.SystemVersion());
        EXPECT_EQ(FieldOf("dlgZelvarStatus44", "txtProtVer").toStdString(), layout.protocolVersion);
        EXPECT_EQ(TextOf("lblKBtype"), layout.unitName);
        for (int line = 0; line < 64; ++line) {
            EXPECT_EQ(New("txtVDstatus", line), layout.TractionState(line)) << line;
            EXPECT_EQ(New("txtVDversion", line), layout.TractionVersion(line)) << line;
        }
        for (int line = 0; line < 32; ++line) {
            EXPECT_EQ(New("txtVDtype", line), layout.TypeOf(line)) << line;
            EXPECT_EQ(New("txtYRstatus", line), layout.SignalState(line)) << line;
            EXPECT_EQ(New("txtYRver", line), layout.SignalVersion(line)) << line;
        }
        for (int position = 0; position < 16; ++position) {
            EXPECT_EQ(New("txtJSstatus", position), layout.PointsState(position)) << position;
            EXPECT_EQ(New("txtJSver", position), layout.PointsVersion(position)) << position;
        }
    }
}

TEST_F(SystemForms, TheClassicViewShowsChannel0) {
    for (std::uint32_t seed = 0; seed < kLayouts; ++seed) {
        SCOPED_TRACE(seed);
        const DescribedLayout layout = AnyLayout(seed);
        port.Connect(layout.ForTheUnit());
        RequestStatus(true);
        EXPECT_EQ(FieldOf("dlgZelvarStatus", "txtSysVer").toStdString(), layout.SystemVersion());
        for (int line = 0; line < 16; ++line) {
            EXPECT_EQ(Classic("txtVDtype", line), layout.ClassicType(line)) << line;
            EXPECT_EQ(Classic("txtVDstatus", line), layout.ClassicState(line)) << line;
        }
        for (int position = 0; position < 8; ++position) {
            EXPECT_EQ(Classic("txtJSstatus", position), layout.ClassicPointsState(position));
        }
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(Classic("txtDIP", i),
                      layout.dipOn[static_cast<std::size_t>(i)] ? "On" : "Off");
        }
    }
}

TEST_F(SystemForms, TheCheckOfMastersAndClocksReportsWhatTheUnitHolds) {
    RequestStatus();
    Choose("cboVD", "All_VDxx");
    for (const int line : {0, 3, 5, 16, 30, 31, 37, 62}) {
        port.state().memories.traction[static_cast<std::size_t>(line)].active[11] = 2;
    }
    port.state().memories.traction[37].active[11] = 1;
    port.state().layout.At(5).clock = 2;
    messageBox.answers = {BoxAnswer::Yes};
    EXPECT_EQ(EffectOfClick("cmdMS(1)"), Changes{});
    const std::string slaves =
        "VD-F 0. is slave\r\nVD-F 3. is slave\r\nVD60  5. is slave\r\nVD60  16. is slave\r\n"
        "VD60  30. is slave\r\nVD-F 31. is slave\r\nVD60  37. is master\r\n"
        "VD60  62. is slave\r\n";
    const std::string clocks =
        "VD-F 0. Clock OK\r\nVD-F 3. Clock OK\r\nVD60  5. Clock OK\r\nVD60  16. Clock OK\r\n"
        "VD60  30. Clock OK\r\nVD-F 31. Clock OK\r\nVD60  37. Bad Clock\r\n"
        "VD60  62. Clock OK\r\n";
    expectedBoxes = {{slaves + "\r\nYour master/slave settings are OK\r\n\r\n"
                               "Do you want to verify Clock quality?",
                      BoxIcon::Plain, BoxButtons::YesNo},
                     {clocks, BoxIcon::Plain, BoxButtons::Ok}};
}

TEST_F(SystemForms, AnswersMayComeWithTheReplyOrWithAnyPollAfterIt) {
    RequestStatus();
    Choose("cboVD", " 31");
    for (const int polls : {0, 1, 2, 3, 7}) {
        port.state().answerDelay = polls;
        for (int parameter = 4; parameter <= 7; ++parameter) {
            const int value = (polls + parameter) % 8;
            port.state().memories.traction[31].active[static_cast<std::size_t>(parameter)] =
                static_cast<std::uint8_t>(value);
            Type(Member("txtSW", parameter - 4), 7 - value);
        }
        Click("cmdSW(1)");
        Poll(polls);
        for (int parameter = 4; parameter <= 7; ++parameter) {
            EXPECT_EQ(NumberIn(Member("txtSW", parameter - 4)), (polls + parameter) % 8) << polls;
        }
    }
}

TEST_F(SystemForms, TheFaultIsShownAndReset) {
    const auto shown = [this] { return TextOf("lblTestSystemStatus"); };
    Click("cmdReset");
    EXPECT_EQ(shown(), "System Status = Run");
    port.state().fault = true;
    Poll(1);
    EXPECT_EQ(shown(), "System Status = Fault");
    EXPECT_EQ(EffectOfClick("cmdReset"), (Changes{{"fault", 0}}));
    EXPECT_EQ(shown(), "System Status = Run");
    Tick("Check_Stop", true);
    EXPECT_EQ(EffectOf([this] { Poll(1); }), (Changes{{"stop", 1}}));
    EXPECT_EQ(shown(), "System Status = Stop");
    Tick("Check_Stop", false);
    EXPECT_EQ(EffectOf([this] { Poll(1); }), (Changes{{"stop", 0}}));
    EXPECT_EQ(shown(), "System Status = Run");
}

TEST_F(SystemForms, OvercurrentsStandInTheAlarmLog) {
    Click("cmdReset");
    for (const int block : {0, 127, 128, 255}) {
        port.state().reports.Push(sim::OvercurrentReport(block, true));
        port.state().reports.Push(sim::OvercurrentReport(block, false));
    }
    Poll(8);
    std::string meant;
    for (const char* block : {"0", "127", "128", "255"}) {
        meant += std::string("Overcurrent block ") + block + " detected .............\n";
        meant += std::string("Overcurrent block ") + block + " .............. released\n";
    }
    QWidget* log = testing::FindWindow("dlgAlarmLog");
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(testing::FindBelow<QPlainTextEdit>(*log, "txtAlarmLog").toPlainText().toStdString(),
              meant);
}

/// The monitor of the feedback inputs.
class MonitorForm : public TwinWindow {
  protected:
    MonitorForm() {
        Click("CommandTestFBM");
        Click("cmdReset");
    }
    template <typename Control>
    Control& Part(const std::string& name) {
        return testing::FindBelow<Control>(*testing::FindWindow("dlgZelvarFeedback"), name.c_str());
    }
    /// Asks for all that is on view and polls until everything has come.
    void RequestData() {
        QTest::mouseClick(&Part<QPushButton>("cmdFBMrefresh"), Qt::LeftButton);
        port.TakeCommands();
        Poll(kLabels + 1);
    }
    static constexpr int kLabels = 128;
};

TEST_F(MonitorForm, ShowsTheInputsOfTheUnitInEveryLayout) {
    const QColor active(255, 128, 0);
    const QColor inactive(255, 255, 255);
    for (int layout = 0; layout < 4; ++layout) {
        auto& option = Part<QRadioButton>(Member("opFBmod", layout));
        QTest::mouseClick(&option, Qt::LeftButton, {}, testing::SpotOf(option));
        // Rows of 16, which lie so far apart.
        const int apart = 16 << layout;
        const int lastBase = 2048 - 8 * apart;
        for (const int base : {0, 37, lastBase}) {
            Part<QWidget>("UpDownFBbase").setProperty("value", base);
            for (std::size_t input = 0; input < port.state().feedback.size(); ++input) {
                port.state().feedback.set(input, (input * 7 + input / 16) % 3 == 0);
            }
            RequestData();
            EXPECT_EQ(port.TakeNames(), std::vector<std::string>(kLabels, "feedback-request"));
            for (int i = 0; i < kLabels; ++i) {
                const int input = base + i % 16 + i / 16 * apart;
                const auto& label = Part<QLabel>(Member("lblFBM", i));
                ASSERT_EQ(label.text().toInt(), input);
                const bool isActive = port.state().feedback.test(static_cast<std::size_t>(input));
                ASSERT_EQ(label.palette().color(QPalette::Window), isActive ? active : inactive)
                    << input;
            }
        }
    }
}

TEST_F(MonitorForm, FollowsTheReportsOfTheUnit) {
    for (const int input : {0, 1, 63, 127}) {
        for (const bool isActive : {true, false}) {
            port.state().reports.Push(sim::FeedbackReport(input, isActive));
            Poll(1);
            EXPECT_EQ(Part<QLabel>(Member("lblFBM", input)).palette().color(QPalette::Window),
                      isActive ? QColor(255, 128, 0) : QColor(255, 255, 255));
        }
    }
}

}  // namespace
}  // namespace zelvar::twin
