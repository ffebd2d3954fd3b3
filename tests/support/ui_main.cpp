// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
    // Real events, but no display; a developer may still choose another platform.
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ZelvarConfig"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
