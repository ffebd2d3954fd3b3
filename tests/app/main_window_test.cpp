// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/main_window.h"

#include <gtest/gtest.h>

#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

using MainWindowTest = WindowFixture;

TEST_F(MainWindowTest, IsTitledWithNameAndVersionAlone) {
    EXPECT_EQ(window->windowTitle(), QStringLiteral("ZelvarConfig 1.40B"));
}

TEST_F(MainWindowTest, ChoosingAPortOpensItAndResetFaultGoesOut) {
    OpenPort();
    Click("cmdReset");
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{1, 0}}));
    EXPECT_EQ(TextOf("lblTestSystemStatus"), QStringLiteral("System Status = Stop"));
}

}  // namespace
}  // namespace zelvar::testing
