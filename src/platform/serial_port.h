// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zelvar {

/// Port numbers run from 1 to this.
constexpr int kLastPortNumber = 16;

/// The one serial line to the central unit, as the rest of the program sees it. Bytes go in and
/// out one at a time. No operation throws; a device that vanished makes `IsOpen` false.
class SerialPort {
  public:
    virtual ~SerialPort() = default;

    /// Chooses the port that the next `Open` opens. @param number 1..16; others cannot be opened.
    virtual void SetPortNumber(int number) = 0;

    /// @param settings baud rate, parity, data bits and stop bits, such as "19200,o,8,1"; used by
    /// the next `Open`.
    virtual void SetSettings(const std::string& settings) = 0;

    /// @return false when the port does not exist, is in use or may not be used.
    virtual bool Open() = 0;
    virtual void Close() = 0;

    /// False before `Open`, after `Close` and from the moment the device is seen to have vanished.
    virtual bool IsOpen() const = 0;

    /// The number of bytes that `ReadByte` can hand over now.
    virtual std::size_t BytesWaiting() = 0;

    /// Takes the oldest waiting byte; 0 when none waits.
    virtual std::uint8_t ReadByte() = 0;

    /// Hands one byte to the line. It may be held back until `Flush` or `WaitForByte`.
    virtual void WriteByte(std::uint8_t byte) = 0;

    /// Sends what `WriteByte` has held back.
    virtual void Flush() = 0;

    /// Sleeps until a byte waits, the time is over or the device is gone.
    /// @param seconds at least 0
    virtual void WaitForByte(double seconds) = 0;

    /// @param onLost runs on the interface thread, soon after an open device has vanished
    virtual void SetLostHandler(std::function<void()> onLost) = 0;
};

/// Tries every port number. @return in ascending order those that can be opened now; the port
/// ends closed.
std::vector<int> FindUsablePorts(SerialPort& port);

}  // namespace zelvar
