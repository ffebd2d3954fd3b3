// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRadioButton>

#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {

inline constexpr const char* kMonitor = "dlgZelvarFeedback";

/// A feedback report as the unit sends it: bit 6 of the first value marks it, bit 4 is the state.
inline Bytes Report(int index, bool active) {
    return WireFrame({64 + (active ? 16 : 0) + index / 128, index % 128});
}

class FeedbackFixture : public DriveFixture {
  protected:
    QWidget& Monitor() {
        QWidget* monitor = FindWindow(kMonitor);
        if (monitor == nullptr) {
            throw std::runtime_error("the monitor is not loaded");
        }
        return *monitor;
    }
    template <typename Control>
    Control& Part(const std::string& name) {
        return FindBelow<Control>(Monitor(), name.c_str());
    }
    QLabel& Label(int i) { return Part<QLabel>("lblFBM(" + std::to_string(i) + ")"); }
    QColor GroundOf(int i) { return Label(i).palette().color(QPalette::Window); }
    void ChooseLayout(int k) {
        auto& option = Part<QRadioButton>("opFBmod(" + std::to_string(k) + ")");
        QTest::mouseClick(&option, Qt::LeftButton, {}, SpotOf(option));
    }
    void SetBase(int base) { Part<QWidget>("UpDownFBbase").setProperty("value", base); }
    QString BaseText() { return Part<QLabel>("lblFBbase").text(); }
    void RequestData() { QTest::mouseClick(&Part<QPushButton>("cmdFBMrefresh"), Qt::LeftButton); }

    /// Opens the port, gets polling to run and shows the monitor.
    void Begin() {
        OpenPort();
        Click("CommandTestFBM");
        StartPolling();
    }
    void StartPolling() {
        Click("cmdReset");
        TakeSent();
    }
    /// An exchange that brings this reply.
    void Receive(const Bytes& reply) {
        port.replies.push_front(reply);
        Click("cmdReset");
        TakeSent();
    }

    /// The numbers that the requests among the frames ask for.
    static std::vector<int> Asked(const Sent& frames) {
        std::vector<int> asked;
        for (const auto& values : frames) {
            if (values.size() == 2 && values[0] >= 96) {
                asked.push_back((values[0] - 96) * 128 + values[1]);
            }
        }
        return asked;
    }

    /// All that go out in so many ticks.
    std::vector<int> AskedIn(int ticks) {
        for (int i = 0; i < ticks; ++i) {
            Poll();
        }
        return Asked(TakeSent());
    }

    static std::vector<int> From(int first, int count) {
        std::vector<int> numbers(static_cast<std::size_t>(count));
        std::iota(numbers.begin(), numbers.end(), first);
        return numbers;
    }

    const QColor kActive{255, 128, 0};
    const QColor kInactive{255, 255, 255};
    const QColor kNoInformation = QApplication::palette().color(QPalette::Dark);
};

}  // namespace zelvar::testing
