// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/handler_gate.h"

#include <gtest/gtest.h>

namespace zelvar::testing {
namespace {

TEST(HandlerGateTest, IsBusyWhileAHandlerRuns) {
    HandlerGate gate;
    bool busyInside = false;
    const auto handler = gate.Handler([&](int) { busyInside = gate.IsBusy(); });
    EXPECT_FALSE(gate.IsBusy());
    handler(1);
    EXPECT_TRUE(busyInside);
    EXPECT_FALSE(gate.IsBusy());
}

TEST(HandlerGateTest, StaysBusyUntilTheOutermostHandlerEnds) {
    HandlerGate gate;
    bool busyAfterInner = false;
    gate.Handler([&] {
        gate.Handler([] {})();
        busyAfterInner = gate.IsBusy();
    })();
    EXPECT_TRUE(busyAfterInner);
    EXPECT_FALSE(gate.IsBusy());
}

TEST(HandlerGateTest, TellsTheBeginningOfOutermostHandlersOnly) {
    HandlerGate gate;
    int begun = 0;
    gate.SetBeginHandler([&] { ++begun; });
    const auto nested = gate.Handler([&] { gate.Handler([] {})(); });
    nested();
    EXPECT_EQ(begun, 1);
    nested();
    EXPECT_EQ(begun, 2);
}

}  // namespace
}  // namespace zelvar::testing
