// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_timer.h"

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/nested_loop.h"

namespace zelvar::testing {
namespace {

/// In milliseconds.
constexpr int kInterval = 2;

class QtTimerTest : public ::testing::Test {
  protected:
    QtTimerTest() {
        timer.SetHandler([this] { ++ticks; });
    }

    /// Lets the event loop turn until another timer of the same interval has ticked often enough.
    static void TurnTheEventLoop() {
        int turns = 0;
        QTimer other;
        QObject::connect(&other, &QTimer::timeout, &other, [&] { ++turns; });
        other.start(kInterval);
        ASSERT_TRUE(QTest::qWaitFor([&] { return turns >= 10; }));
    }

    QtTimer timer{kInterval};
    int ticks = 0;
};

TEST_F(QtTimerTest, TicksOnlyWhileEnabled) {
    EXPECT_FALSE(timer.IsEnabled());
    TurnTheEventLoop();
    EXPECT_EQ(ticks, 0);
    timer.SetEnabled(true);
    EXPECT_TRUE(timer.IsEnabled());
    EXPECT_TRUE(QTest::qWaitFor([this] { return ticks >= 3; }));
    timer.SetEnabled(false);
    const int before = ticks;
    TurnTheEventLoop();
    EXPECT_EQ(ticks, before);
}

TEST_F(QtTimerTest, NeverTicksInsideAHandlerThatLetsTheEventLoopTurn) {
    timer.SetEnabled(true);
    {
        const NestedLoop nested;
        TurnTheEventLoop();
        EXPECT_EQ(ticks, 0);
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return ticks > 0; })) << "it goes on afterwards";
}

TEST_F(QtTimerTest, NeverTicksInsideItsOwnTick) {
    int depth = 0;
    int deepest = 0;
    timer.SetHandler([&] {
        ++depth;
        deepest = std::max(deepest, depth);
        if (++ticks == 1) {
            const NestedLoop nested;
            TurnTheEventLoop();
        }
        --depth;
    });
    timer.SetEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return ticks >= 3; }));
    EXPECT_EQ(deepest, 1);
}

}  // namespace
}  // namespace zelvar::testing
