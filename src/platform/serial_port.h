// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace zelvar {

/// Port numbers run from 1 to this.
constexpr int kLastPortNumber = 16;

/// The one serial line to the central unit, as an exchange uses it: send a frame and wait for a
/// byte, then read what has come. Odd parity, 8 data bits, 1 stop bit. No operation throws; a
/// device that vanished makes `IsOpen` false.
class SerialPort {
  public:
    virtual ~SerialPort() = default;

    /// @param number 1..16 @param baudRate such as 19200
    /// @return false when the port does not exist, is in use or may not be used.
    virtual bool Open(int number, int baudRate) = 0;
    virtual void Close() = 0;

    /// False before `Open`, after `Close` and from the moment the device is seen to have vanished.
    virtual bool IsOpen() const = 0;

    /// Sends bytes, then sleeps until one arrives, the time is over or the device is gone. Nothing
    /// comes between sending and sleeping, so that a fast reply finds a sleeping thread.
    /// @param bytes may be empty @param seconds at least 0
    virtual void SendAndWait(std::span<const std::uint8_t> bytes, double seconds) = 0;

    /// Takes the oldest bytes that have arrived, without waiting.
    /// @return how many were put into the buffer
    virtual std::size_t Read(std::span<std::uint8_t> buffer) = 0;

    /// @param onLost runs on the interface thread, soon after an open device has vanished
    virtual void SetLostHandler(std::function<void()> onLost) = 0;
};

/// Tries every port number. @return in ascending order those that can be opened now; the port
/// ends closed.
std::vector<int> FindUsablePorts(SerialPort& port, int baudRate);

}  // namespace zelvar
