// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QApplication>

#include "app/program.h"
#include "platform/quit_on_signal.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The display name stays unset: Qt would append it to the windows' titles.
    QApplication::setApplicationName(QString::fromLatin1(zelvar::kApplicationTitle));
    zelvar::QuitOnSignal();
    zelvar::Program program;
    program.Window().show();
    return QApplication::exec();
}
