// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSerialPort>

#include <functional>
#include <string>

#include "platform/port_table.h"
#include "platform/serial_port.h"

namespace zelvar {

/// A serial device of this computer. Waiting sleeps in the operating system; no event loop turns.
class QtSerialPort : public SerialPort {
  public:
    explicit QtSerialPort(PortTable table);

    void SetPortNumber(int number) override { number_ = number; }
    void SetSettings(const std::string& settings) override;
    bool Open() override;
    void Close() override;
    bool IsOpen() const override { return port_.isOpen() && !lost_; }
    std::size_t BytesWaiting() override;
    std::uint8_t ReadByte() override;
    void WriteByte(std::uint8_t byte) override;
    void Flush() override;
    void WaitForByte(double seconds) override;
    void SetLostHandler(std::function<void()> onLost) override { onLost_ = std::move(onLost); }

  private:
    void NoteError(QSerialPort::SerialPortError error);
    void CloseLost();
    void Pump(int milliseconds);

    PortTable table_;
    QSerialPort port_;
    int number_ = 0;
    bool lost_ = false;
    /// Written but not yet handed over.
    QByteArray held_;
    std::function<void()> onLost_;
};

}  // namespace zelvar
