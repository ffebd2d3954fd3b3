// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/line_io.h"

namespace zelvar {

bool SendAndWaitOn(QSerialPort& port, std::span<const std::uint8_t> bytes, int milliseconds) {
    if (!bytes.empty()) {
        port.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
        port.flush();
    }
    if (port.bytesAvailable() == 0) {
        port.waitForReadyRead(milliseconds);
    }
    return !IsLineLost(port);
}

std::optional<std::size_t> ReadFrom(QSerialPort& port, std::span<std::uint8_t> buffer) {
    if (port.bytesAvailable() == 0) {
        port.waitForReadyRead(0);
    }
    const qint64 count =
        port.read(reinterpret_cast<char*>(buffer.data()), static_cast<qint64>(buffer.size()));
    if (count < 0 || IsLineLost(port)) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(count);
}

bool IsLineLost(const QSerialPort& port) {
    switch (port.error()) {
        case QSerialPort::NoError:
        case QSerialPort::TimeoutError:
        case QSerialPort::OpenError:
        case QSerialPort::NotOpenError:
        case QSerialPort::UnsupportedOperationError:
        case QSerialPort::DeviceNotFoundError:
            return false;
        default:
            return true;
    }
}

}  // namespace zelvar
