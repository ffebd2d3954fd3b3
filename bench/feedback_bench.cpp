// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// How long the feedback monitor takes to show another 128 inputs, against 128 bare labels that get
// a text and a palette each.

#include <QApplication>
#include <QGridLayout>
#include <QLabel>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>

#include "support/outcome.h"
#include "test/feedback/dlg_zelvar_feedback.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kColumns = zelvar::kFeedbackColumns;
/// A step of one row, so that every label gets another number and, with the rows of the table in
/// turn active and inactive, another colour.
constexpr int kStep = kColumns;

/// What no monitor can do without: 128 labels of a fixed size, one text and one palette for each.
class BareLabels : public QWidget {
  public:
    BareLabels() {
        palettes_[0].setColor(QPalette::Window, Qt::white);
        palettes_[1].setColor(QPalette::Window, Qt::darkYellow);
        auto* grid = new QGridLayout(this);
        for (std::size_t i = 0; i < labels_.size(); ++i) {
            labels_[i] = new QLabel(this);
            labels_[i]->setTextFormat(Qt::PlainText);
            labels_[i]->setAlignment(Qt::AlignCenter);
            labels_[i]->setAutoFillBackground(true);
            labels_[i]->setFixedSize(40, 24);
            const int place = static_cast<int>(i);
            grid->addWidget(labels_[i], place / kColumns, place % kColumns);
        }
    }

    void Show(int base) {
        for (std::size_t i = 0; i < labels_.size(); ++i) {
            const int number = base + static_cast<int>(i);
            labels_[i]->setText(QString::number(number));
            labels_[i]->setPalette(palettes_[static_cast<std::size_t>(number / kColumns % 2)]);
        }
    }

  private:
    std::array<QPalette, 2> palettes_;
    std::array<QLabel*, static_cast<std::size_t>(zelvar::kFeedbackLabels)> labels_{};
};

double Microseconds(Clock::duration time, const benchmark::State& state) {
    return std::chrono::duration<double, std::micro>(time).count() /
           static_cast<double>(state.iterations());
}

/// Both take turns, so that a busy machine slows both. Painting the whole monitor is counted
/// apart; a frame has 16,000 microseconds for layout and painting together.
void BM_RelayoutOf128Labels(benchmark::State& state) {
    zelvar::DlgZelvarFeedback monitor;
    auto* spin = monitor.findChild<zelvar::LabelStepper*>(QStringLiteral("UpDownFBbase"));
    auto* last = monitor.findChild<QLabel*>(QStringLiteral("lblFBM(127)"));
    for (int input = 0; input < zelvar::kFeedbackInputs; ++input) {
        const bool active = input / kColumns % 2 != 0;
        monitor.fbUpdate(input, active ? zelvar::kFeedbackActive : zelvar::kFeedbackInactive);
    }
    monitor.show();
    BareLabels bare;
    bare.show();
    bare.Show(0);
    QApplication::processEvents();
    Clock::duration bareTime{0};
    Clock::duration relayoutTime{0};
    Clock::duration paintTime{0};
    int base = 0;
    for ([[maybe_unused]] const auto& turn : state) {
        base = kStep - base;
        const auto start = Clock::now();
        bare.Show(base);
        const auto middle = Clock::now();
        spin->setValue(base);
        const auto laidOut = Clock::now();
        benchmark::DoNotOptimize(monitor.grab());
        paintTime += Clock::now() - laidOut;
        relayoutTime += laidOut - middle;
        bareTime += middle - start;
    }
    if (last->text() != QString::number(base + zelvar::kFeedbackLabels - 1)) {
        zelvar::bench::Fail(state, "the labels show other inputs");
        return;
    }
    state.counters["bare_us"] = Microseconds(bareTime, state);
    state.counters["relayout_us"] = Microseconds(relayoutTime, state);
    state.counters["painting_us"] = Microseconds(paintTime, state);
    state.counters["ratio"] = std::chrono::duration<double>(relayoutTime).count() /
                              std::chrono::duration<double>(bareTime).count();
}
BENCHMARK(BM_RelayoutOf128Labels)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return zelvar::bench::RunBenchmarks(argc, argv);
}
