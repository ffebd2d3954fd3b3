// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// A full status request on a line paced at 19200 baud, against the time that its bytes take on the
// wire plus the unit's own delay.

#include <QApplication>
#include <QPushButton>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "app/main_window.h"
#include "controls/press_button.h"
#include "harness/simulator.h"
#include "platform/port_table.h"
#include "platform/qt_serial_port.h"
#include "platform/qt_timer.h"

namespace {

constexpr double kBaud = 19200;
/// Start, 8 data, parity and stop.
constexpr double kBitsPerByte = 11;
constexpr double kUnitDelaySeconds = 0.001;
constexpr const char* kUnitDelayMilliseconds = "1";

/// The serial port, with what passes counted.
class CountingPort : public zelvar::QtSerialPort {
  public:
    using QtSerialPort::QtSerialPort;

    std::size_t Read(std::span<std::uint8_t> buffer) override {
        const std::size_t count = QtSerialPort::Read(buffer);
        bytes += static_cast<int>(count);
        return count;
    }
    void SendAndWait(std::span<const std::uint8_t> sent, double seconds) override {
        bytes += static_cast<int>(sent.size());
        frames += sent.empty() ? 0 : 1;
        QtSerialPort::SendAndWait(sent, seconds);
    }

    int bytes = 0;
    int frames = 0;
};

/// A question means that the request failed.
class NoBox : public zelvar::MessageBox {
  public:
    zelvar::BoxAnswer Ask(const std::string& text, zelvar::BoxIcon /*icon*/,
                          zelvar::BoxButtons /*buttons*/) override {
        std::fprintf(stderr, "status_bench: the program asks: %s\n", text.c_str());
        failed = true;
        return zelvar::BoxAnswer::Ok;
    }

    bool failed = false;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const zelvar::e2e::TempFolder folder;
    const zelvar::e2e::Simulator simulator(folder, {"--unit-delay", kUnitDelayMilliseconds},
                                           zelvar::e2e::Simulator::Line::kPaced);
    CountingPort port(zelvar::PortTable(zelvar::PortNaming::Linux, simulator.Device()));
    zelvar::QtTimer timer(zelvar::kPollInterval);
    const zelvar::SteadyClock clock;
    NoBox box;
    const auto describe = [](int number) { return QString::number(number); };
    zelvar::MainWindow window({port, timer, clock, box, describe, describe});
    window.show();
    QApplication::processEvents();
    window.findChild<QComboBox*>(QStringLiteral("cboPort"))->setCurrentIndex(0);
    auto* status = window.findChild<zelvar::PressButton*>(QStringLiteral("cmdStatus"));
    for (int run = 1; run <= 3; ++run) {
        port.bytes = 0;
        port.frames = 0;
        const auto start = std::chrono::steady_clock::now();
        status->click();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        if (box.failed || port.frames == 0) {
            std::fprintf(stderr, "status_bench: the request failed\n");
            return EXIT_FAILURE;
        }
        const double wire = port.bytes * kBitsPerByte / kBaud;
        const double ideal = wire + port.frames * kUnitDelaySeconds;
        std::printf(
            "status request %d: %d exchanges, %d bytes, %.3f s on the wire, %.3f s with the unit's "
            "delay; took %.3f s, ratio %.3f\n",
            run, port.frames, port.bytes, wire, ideal, took.count(), took.count() / ideal);
        timer.SetEnabled(false);
    }
    return 0;
}
