// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSerialPort>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zelvar {

// The bytes of an open serial port, one implementation for each kind of operating system.

/// Sends bytes and sleeps until one arrives or the time is over. Bytes that the system has not
/// taken by then are not sent any more. @return false when the device is gone
bool SendAndWaitOn(QSerialPort& port, std::span<const std::uint8_t> bytes, int milliseconds);

/// Takes what has arrived, without waiting. @return how many bytes; nothing when the device is gone
std::optional<std::size_t> ReadFrom(QSerialPort& port, std::span<std::uint8_t> buffer);

/// @return whether the port's error says that the device is gone
bool IsLineLost(const QSerialPort& port);

}  // namespace zelvar
