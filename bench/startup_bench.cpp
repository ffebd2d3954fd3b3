// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// From the start of the process to the first painted window with all its contents: the program
// against a bare window with one word in it, and against one that is empty and so never loads a
// font. All take turns, each in a process of its own; the medians are compared.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "app/program.h"
#include "platform/quit_on_signal.h"

namespace {

constexpr int kRuns = 21;

/// Ends the process once the window that it filters has been painted, with all that is in it.
class EndWhenPainted : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || seen_) {
            return false;
        }
        seen_ = true;
        // Runs when the event that paints the window and its controls has been handled.
        QMetaObject::invokeMethod(
            qApp, [] { _exit(0); }, Qt::QueuedConnection);
        watched->event(event);
        return true;
    }

  private:
    bool seen_ = false;
};

int RunBare(int argc, char** argv, bool withWord) {
    QApplication application(argc, argv);
    QMainWindow window;
    if (withWord) {
        window.setCentralWidget(new QLabel(QStringLiteral("ZelvarConfig")));
    }
    EndWhenPainted end;
    window.installEventFilter(&end);
    window.resize(960, 640);
    window.show();
    return QApplication::exec();
}

int RunProgram(int argc, char** argv) {
    QApplication application(argc, argv);
    zelvar::QuitOnSignal();
    zelvar::Program program;
    EndWhenPainted end;
    program.Window().installEventFilter(&end);
    program.Window().show();
    return QApplication::exec();
}

double Measure(const char* mode) {
    const auto start = std::chrono::steady_clock::now();
    if (QProcess::execute(QCoreApplication::applicationFilePath(), {QString::fromLatin1(mode)}) !=
        EXIT_SUCCESS) {
        std::fprintf(stderr, "startup_bench: no window could be shown\n");
        std::exit(EXIT_FAILURE);
    }
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    return took.count();
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view mode = argc > 1 ? argv[1] : "";
    if (mode == "empty" || mode == "word") {
        return RunBare(argc, argv, mode == "word");
    }
    if (mode == "program") {
        return RunProgram(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    std::vector<double> empty;
    std::vector<double> word;
    std::vector<double> program;
    for (int run = 0; run < kRuns; ++run) {
        empty.push_back(Measure("empty"));
        word.push_back(Measure("word"));
        program.push_back(Measure("program"));
    }
    const double emptyMedian = Median(empty);
    const double programMedian = Median(program);
    std::printf(
        "first painted window: %.1f ms; bare and empty %.1f ms, ratio %.3f; bare with a word %.1f "
        "ms, ratio %.3f\n",
        programMedian, emptyMedian, programMedian / emptyMedian, Median(word),
        programMedian / Median(word));
    return 0;
}
