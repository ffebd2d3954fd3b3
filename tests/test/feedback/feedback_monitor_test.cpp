// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdlib>

#include "test/feedback/dlg_zelvar_feedback.h"
#include "test/feedback/feedback_fixture.h"

namespace zelvar::testing {
namespace {

class FeedbackMonitorTest : public FeedbackFixture {
  protected:
    /// Of all labels.
    std::vector<QString> Texts() {
        std::vector<QString> texts;
        for (int i = 0; i < 128; ++i) {
            texts.push_back(Label(i).text());
        }
        return texts;
    }
};

TEST_F(FeedbackMonitorTest, IsShownByItsButtonBesideTheMainWindow) {
    Click("CommandTestFBM");
    EXPECT_TRUE(Monitor().isVisible());
    EXPECT_EQ(Monitor().windowModality(), Qt::NonModal);
    EXPECT_TRUE(messageBox.shown.empty());
    Click("cmdReset");
    EXPECT_EQ(messageBox.shown, kSelectPort) << "the main window works on";
}

TEST_F(FeedbackMonitorTest, IsLoadedByTheFirstReportWithoutBeingShown) {
    OpenPort();
    Receive(Report(389, true));
    ASSERT_NE(FindWindow(kMonitor), nullptr);
    EXPECT_FALSE(Monitor().isVisible());
    Click("CommandTestFBM");
    EXPECT_TRUE(Monitor().isVisible());
    SetBase(380);
    EXPECT_EQ(Label(9).text(), QStringLiteral("389"));
    EXPECT_EQ(GroundOf(9), kActive);
    EXPECT_EQ(GroundOf(8), kNoInformation);
}

TEST_F(FeedbackMonitorTest, TakesOnlyRepliesWithBit6Set) {
    OpenPort();
    Receive(WireFrame({19, 5}));
    EXPECT_EQ(FindWindow(kMonitor), nullptr);
    Receive(WireFrame({64 + 19, 5}));
    EXPECT_NE(FindWindow(kMonitor), nullptr);
}

TEST_F(FeedbackMonitorTest, IsNotLoadedByTicks) {
    OpenPort();
    StartPolling();
    Poll();
    EXPECT_EQ(TakeSent(), (Sent{{}}));
    EXPECT_EQ(FindWindow(kMonitor), nullptr);
}

TEST_F(FeedbackMonitorTest, ColoursLabelsByTheirState) {
    Begin();
    Receive(Report(5, true));
    Receive(Report(6, false));
    EXPECT_EQ(GroundOf(5), kActive);
    EXPECT_EQ(GroundOf(6), kInactive);
    EXPECT_EQ(GroundOf(7), kNoInformation);
    EXPECT_EQ(Label(5).accessibleName(), QStringLiteral("Input 5, active"));
    Receive(Report(5, false));
    EXPECT_EQ(GroundOf(5), kInactive);
    EXPECT_EQ(Label(5).accessibleName(), QStringLiteral("Input 5, inactive"));
    EXPECT_EQ(Label(7).accessibleName(), QStringLiteral("Input 7, no information"));
    EXPECT_EQ(Part<QLabel>("lblFBMform(1)").palette().color(QPalette::Window), kInactive);
    EXPECT_EQ(Part<QLabel>("lblFBMform(2)").palette().color(QPalette::Window), kActive);
    EXPECT_EQ(Part<QLabel>("lblFBMform(3)").palette().color(QPalette::Window), kNoInformation);
}

TEST_F(FeedbackMonitorTest, ShowsAnyOtherStateLikeNoInformation) {
    Click("CommandTestFBM");
    auto& monitor = dynamic_cast<DlgZelvarFeedback&>(Monitor());
    EXPECT_TRUE(monitor.fbUpdate(3, 1));
    EXPECT_TRUE(monitor.fbUpdate(3, 2));
    EXPECT_EQ(GroundOf(3), kNoInformation);
    EXPECT_FALSE(monitor.fbUpdate(2049, 1));
    EXPECT_FALSE(monitor.fbUpdate(-1, 1));
}

TEST_F(FeedbackMonitorTest, ItsCaptionsAreThoseOfTheLegend) {
    Click("CommandTestFBM");
    EXPECT_EQ(Part<QLabel>("lblFBMform(0)").text(), QStringLiteral("Base"));
    EXPECT_EQ(Part<QLabel>("lblFBMform(4)").text(), QStringLiteral("= Inactive"));
    EXPECT_EQ(Part<QLabel>("lblFBMform(5)").text(), QStringLiteral("= Active"));
    EXPECT_EQ(Part<QLabel>("lblFBMform(6)").text(), QStringLiteral("= No information"));
    EXPECT_EQ(Part<QPushButton>("cmdFBMrefresh").text(), QStringLiteral("Request Data"));
}

/// Notes which labels were repainted in another colour.
class TouchedLabels : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) {
            names.push_back(watched->objectName().toStdString());
        }
        return false;
    }
    std::vector<std::string> names;
};

TEST_F(FeedbackMonitorTest, AReportTouchesOnlyTheLabelThatShowsItsInput) {
    Begin();
    TouchedLabels touched;
    for (int i = 0; i < 128; ++i) {
        Label(i).installEventFilter(&touched);
    }
    const std::vector<QString> texts = Texts();
    Receive(Report(77, true));
    EXPECT_EQ(touched.names, (std::vector<std::string>{"lblFBM(77)"}));
    Receive(Report(77, true));
    Receive(Report(1000, true));
    EXPECT_EQ(touched.names.size(), 1U);
    EXPECT_EQ(Texts(), texts);
}

TEST_F(FeedbackMonitorTest, KeepsItsTableUntilItsWindowIsClosed) {
    Begin();
    Receive(Report(7, true));
    RequestData();
    Monitor().close();
    EXPECT_EQ(AskedIn(3), std::vector<int>{}) << "the cycle went with the window";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(FindWindow(kMonitor), nullptr);
    Click("CommandTestFBM");
    EXPECT_EQ(GroundOf(7), kNoInformation);
    EXPECT_EQ(BaseText(), QStringLiteral("0"));
}

TEST_F(FeedbackMonitorTest, GoesWithTheMainWindow) {
    Click("CommandTestFBM");
    window->close();
    EXPECT_EQ(FindWindow(kMonitor), nullptr);
}

TEST_F(FeedbackMonitorTest, ItsNumbersStayReadableInADarkTheme) {
    const QPalette before = QApplication::palette();
    Click("CommandTestFBM");
    for (const QColor& shadow : {QColor(20, 20, 20), QColor(160, 160, 160)}) {
        QPalette theme = before;
        theme.setColor(QPalette::Window, QColor(40, 40, 40));
        theme.setColor(QPalette::WindowText, Qt::white);
        theme.setColor(QPalette::Dark, shadow);
        QApplication::setPalette(theme);
        QCoreApplication::processEvents();
        EXPECT_EQ(GroundOf(3), shadow);
        const int difference =
            Label(3).palette().color(QPalette::WindowText).lightness() - GroundOf(3).lightness();
        EXPECT_GT(std::abs(difference), 100);
    }
    QApplication::setPalette(before);
}

TEST_F(FeedbackMonitorTest, FitsAWindowOf1000By720) {
    Click("CommandTestFBM");
    const QSize needed = Monitor().minimumSizeHint().expandedTo(Monitor().size());
    EXPECT_LE(needed.width(), 1000);
    EXPECT_LE(needed.height(), 720);
}

}  // namespace
}  // namespace zelvar::testing
