// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/status_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/qt_timer.h"
#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

class StatusBarTest : public ::testing::Test {
  protected:
    StatusBarTest() {
        bar.resize(900, bar.sizeHint().height());
        bar.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&bar));
    }

    StatusBar bar;
    QLabel& caption = FindBelow<QLabel>(bar, "lblBarProgress");
    QProgressBar& progress = FindBelow<QProgressBar>(bar, "prgBar");
    QPushButton& cancel = FindBelow<QPushButton>(bar, "cmdCancel");
};

TEST_F(StatusBarTest, StartsWithoutProgressAndDisconnected) {
    EXPECT_EQ(FindBelow<QLabel>(bar, "lblBarStatus").text(),
              QStringLiteral("System Status = Disconnected"));
    EXPECT_EQ(FindBelow<QLabel>(bar, "lblBarDevice").text(), QStringLiteral("No port open"));
    EXPECT_FALSE(caption.isVisible());
    EXPECT_FALSE(progress.isVisible());
    EXPECT_FALSE(cancel.isVisible());
}

TEST_F(StatusBarTest, ShowsWhatGoesOnAndHowFarItIs) {
    bar.Begin("Asking the modules", 4);
    EXPECT_EQ(caption.text(), QStringLiteral("Asking the modules"));
    EXPECT_TRUE(caption.isVisible());
    EXPECT_EQ(progress.value(), 0);
    bar.Step();
    bar.Step();
    EXPECT_EQ(progress.value(), 2);
    EXPECT_EQ(progress.maximum(), 4);
    bar.Begin("Something else", 2);
    EXPECT_EQ(progress.value(), 0);
    bar.End();
    EXPECT_FALSE(caption.isVisible());
    EXPECT_FALSE(progress.isVisible());
}

TEST_F(StatusBarTest, PaintsProgressAtOnceWithoutTurningTheEventLoop) {
    class PaintCounter : public QObject {
      public:
        bool eventFilter(QObject*, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    bar.Begin("Asking the modules", 4);
    progress.installEventFilter(&counter);
    bool eventRan = false;
    QMetaObject::invokeMethod(
        &bar, [&] { eventRan = true; }, Qt::QueuedConnection);
    bar.Step();
    EXPECT_GT(counter.paints, 0);
    EXPECT_FALSE(eventRan);
    progress.removeEventFilter(&counter);
}

TEST_F(StatusBarTest, NothingMovesWhenProgressOrCancelAppears) {
    auto& device = FindBelow<QLabel>(bar, "lblBarDevice");
    const QRect before = device.geometry();
    bar.Begin("Asking the central unit", 4);
    bar.OfferCancel();
    QCoreApplication::processEvents();
    EXPECT_EQ(device.geometry(), before);
    bar.End();
}

TEST_F(StatusBarTest, WithoutAnOfferNothingIsPumpedAndNothingCancelled) {
    bar.Begin("Asking the central unit", 4);
    bool eventRan = false;
    QMetaObject::invokeMethod(
        &bar, [&] { eventRan = true; }, Qt::QueuedConnection);
    EXPECT_FALSE(bar.IsCancelled());
    EXPECT_FALSE(eventRan);
    bar.End();
}

TEST_F(StatusBarTest, NoTickRunsWhileCancelIsPumped) {
    QtTimer timer(0);
    int ticks = 0;
    timer.SetHandler([&] { ++ticks; });
    timer.SetEnabled(true);
    bar.Begin("Asking the central unit", 4);
    bar.OfferCancel();
    bool eventRan = false;
    QTimer::singleShot(0, &bar, [&] { eventRan = true; });
    EXPECT_FALSE(bar.IsCancelled());
    EXPECT_TRUE(eventRan);
    EXPECT_EQ(ticks, 0);
    bar.End();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }));
}

TEST_F(StatusBarTest, AnOldCancelDoesNotCountForTheNextWork) {
    bar.Begin("Asking the central unit", 4);
    bar.OfferCancel();
    cancel.click();
    EXPECT_TRUE(bar.IsCancelled());
    bar.End();
    EXPECT_FALSE(cancel.isVisible());
    bar.Begin("Asking the central unit", 4);
    bar.OfferCancel();
    EXPECT_FALSE(bar.IsCancelled());
    bar.End();
}

TEST_F(StatusBarTest, AScopeEndsTheDisplay) {
    {
        const ProgressScope scope(bar, "Asking the central unit", 4);
        EXPECT_TRUE(progress.isVisible());
    }
    EXPECT_FALSE(progress.isVisible());
}

}  // namespace
}  // namespace zelvar::testing
