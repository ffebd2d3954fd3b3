// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// From the start of the process to the first painted window: the program against a bare window with
// one word in it, and against one that is empty and so never loads a font. All take turns, each in
// a process of its own; the medians are compared.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "app/program.h"
#include "support/simulator.h"

namespace {

constexpr int kRuns = 21;

/// Ends the process once the window has been painted.
class EndWhenPainted : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || seen_) {
            return false;
        }
        seen_ = true;
        // Queued before anything that the window may put off until it is painted.
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
    zelvar::Program program;
    EndWhenPainted end;
    program.Window().installEventFilter(&end);
    program.Window().show();
    return QApplication::exec();
}

double Measure(const std::string& self, const char* mode) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t process = zelvar::bench::Start(self, {mode}, -1);
    waitpid(process, nullptr, 0);
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
    std::vector<double> empty;
    std::vector<double> word;
    std::vector<double> program;
    for (int run = 0; run < kRuns; ++run) {
        empty.push_back(Measure(argv[0], "empty"));
        word.push_back(Measure(argv[0], "word"));
        program.push_back(Measure(argv[0], "program"));
    }
    const double programMedian = Median(program);
    std::printf(
        "first painted window: program %.1f ms; bare with a word %.1f ms, ratio %.3f; bare and "
        "empty "
        "%.1f ms, ratio %.3f\n",
        programMedian, Median(word), programMedian / Median(word), Median(empty),
        programMedian / Median(empty));
    return 0;
}
