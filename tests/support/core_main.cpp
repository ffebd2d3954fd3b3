// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include <gtest/gtest.h>

/// For tests that start programs or wait for events, without a window of their own.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
