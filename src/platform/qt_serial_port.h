// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSerialPort>

#include <functional>
#include <memory>

#include "platform/port_table.h"
#include "platform/serial_port.h"

class QSocketNotifier;

namespace zelvar {

/// A serial device of this computer. Waiting sleeps in the operating system; no event loop turns.
/// QSerialPort opens, locks and configures the device. On Unix the bytes go past it: it would
/// collect without bound what comes between two exchanges, and whether it notices a device that
/// hung up depends on its version.
class QtSerialPort : public SerialPort {
  public:
    explicit QtSerialPort(PortTable table);
    ~QtSerialPort() override;

    bool Open(int number, int baudRate) override;
    void Close() override;
    bool IsOpen() const override { return port_.isOpen() && !lost_; }
    void SendAndWait(std::span<const std::uint8_t> bytes, double seconds) override;
    std::size_t Read(std::span<std::uint8_t> buffer) override;
    void SetLostHandler(std::function<void()> onLost) override { onLost_ = std::move(onLost); }

  private:
    void WatchWhileIdle();
    void LookWhileIdle();
    void MarkLost();
    void CloseLost();

    PortTable table_;
    QSerialPort port_;
    /// Reports what happens on the line while no exchange runs.
    std::unique_ptr<QSocketNotifier> idleWatch_;
    bool lost_ = false;
    std::function<void()> onLost_;
};

}  // namespace zelvar
