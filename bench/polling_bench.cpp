// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// How much of a core the whole program takes while it polls every 20 ms for 10 s.

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

#include "app/program.h"
#include "harness/simulator.h"

namespace {

constexpr int kMeasuredMilliseconds = 10000;
constexpr int kSettlingMilliseconds = 500;

double CpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void RunFor(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QString TextOf(const QWidget& window, const char* label) {
    return window.findChild<QLabel*>(QString::fromLatin1(label))->text();
}

int Fail(const char* error) {
    std::fprintf(stderr, "polling_bench: %s\n", error);
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const zelvar::e2e::TempFolder folder;
    const zelvar::e2e::Simulator simulator(folder);
    setenv("ZELVARCONFIG_PORTS", simulator.Device().c_str(), 1);
    zelvar::Program program;
    zelvar::MainWindow& window = program.Window();
    window.show();
    auto* ports = window.findChild<QComboBox*>(QStringLiteral("cboPort"));
    ports->setCurrentIndex(0);
    if (TextOf(window, "lblBarDevice") == QStringLiteral("No port open")) {
        return Fail("the line cannot be opened");
    }
    window.findChild<QPushButton*>(QStringLiteral("cmdReset"))->click();
    RunFor(kSettlingMilliseconds);

    const double cpuBefore = CpuSeconds();
    const auto start = std::chrono::steady_clock::now();
    RunFor(kMeasuredMilliseconds);
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    const double cpu = CpuSeconds() - cpuBefore;
    if (TextOf(window, "lblBarStatus") == QStringLiteral("System Status = Disconnected")) {
        return Fail("the unit did not answer to the end");
    }
    std::printf("polling for %.1f s: %.3f s of processor time, %.2f %% of a core\n", wall.count(),
                cpu, 100 * cpu / wall.count());
    return 0;
}
