// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_serial_port.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

#ifdef Q_OS_UNIX
#include <poll.h>
#include <unistd.h>
#endif

namespace zelvar {

namespace {

constexpr double kMillisecondsPerSecond = 1000;

QSerialPort::Parity ParityOf(const QString& letter) {
    if (letter == QLatin1String("o")) {
        return QSerialPort::OddParity;
    }
    return letter == QLatin1String("e") ? QSerialPort::EvenParity : QSerialPort::NoParity;
}

#ifdef Q_OS_UNIX
/// Hands the bytes to the system and sleeps until some come back. Nothing stands between the two
/// calls: a thread that is not yet asleep when the line's own thread wakes up waits about 20 us
/// longer for its reply.
/// @return whether the system took all bytes; if not, those it took are gone from `bytes`
bool SendAndSleep(int line, QByteArray& bytes, int milliseconds) {
    const ssize_t taken = bytes.isEmpty() ? 0 : write(line, bytes.constData(), bytes.size());
    if (taken == bytes.size()) {
        pollfd wait{line, POLLIN, 0};
        poll(&wait, 1, milliseconds);
    }
    bytes.remove(0, std::max<ssize_t>(taken, 0));
    return bytes.isEmpty();
}
#endif

}  // namespace

QtSerialPort::QtSerialPort(PortTable table) : table_(std::move(table)) {
    QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                     [this](QSerialPort::SerialPortError error) { NoteError(error); });
}

void QtSerialPort::SetSettings(const std::string& settings) {
    constexpr int kParts = 4;
    const QStringList parts = QString::fromStdString(settings).split(QLatin1Char(','));
    if (parts.size() != kParts) {
        return;
    }
    port_.setBaudRate(parts[0].toInt());
    port_.setParity(ParityOf(parts[1]));
    port_.setDataBits(static_cast<QSerialPort::DataBits>(parts[2].toInt()));
    port_.setStopBits(static_cast<QSerialPort::StopBits>(parts[3].toInt()));
}

bool QtSerialPort::Open() {
    Close();
    const QString device = QString::fromStdString(table_.DeviceOf(number_));
    // Most numbers of the table have no device; a look spares the attempt to lock and open it.
    const bool isPath = device.startsWith(QLatin1Char('/'));
    if (device.isEmpty() || (isPath && !QFileInfo::exists(device))) {
        return false;
    }
    port_.setPortName(device);
    const bool opened = port_.open(QIODevice::ReadWrite);
    if (!opened || lost_) {
        Close();
        return false;
    }
    return true;
}

void QtSerialPort::Close() {
    if (port_.isOpen()) {
        port_.close();
    }
    lost_ = false;
    held_.clear();
}

void QtSerialPort::NoteError(QSerialPort::SerialPortError error) {
    switch (error) {
        case QSerialPort::NoError:
        case QSerialPort::TimeoutError:
        case QSerialPort::OpenError:
        case QSerialPort::NotOpenError:
        case QSerialPort::UnsupportedOperationError:
        case QSerialPort::DeviceNotFoundError:
            return;
        default:
            break;
    }
    // When the other end goes, either one error comes or a flood of them: the first one counts.
    if (lost_ || !port_.isOpen()) {
        return;
    }
    lost_ = true;
    // Not closed right here: this may be running inside a notifier that closing would delete.
    QMetaObject::invokeMethod(
        &port_, [this] { CloseLost(); }, Qt::QueuedConnection);
}

void QtSerialPort::CloseLost() {
    // The port may have been closed or opened anew since.
    if (lost_) {
        port_.close();
        if (onLost_) {
            onLost_();
        }
    }
}

void QtSerialPort::Pump(int milliseconds) {
    if (IsOpen() && port_.bytesAvailable() == 0) {
        port_.waitForReadyRead(milliseconds);
    }
}

std::size_t QtSerialPort::BytesWaiting() {
    // While a frame is held back nothing can have come that `WaitForByte` would not find.
    if (held_.isEmpty()) {
        Pump(0);
    }
    return IsOpen() ? static_cast<std::size_t>(port_.bytesAvailable()) : 0;
}

std::uint8_t QtSerialPort::ReadByte() {
    char byte = 0;
    port_.getChar(&byte);
    return static_cast<std::uint8_t>(byte);
}

void QtSerialPort::WriteByte(std::uint8_t byte) {
    held_.append(static_cast<char>(byte));
}

void QtSerialPort::Flush() {
    if (IsOpen() && !held_.isEmpty()) {
        port_.write(held_);
        port_.flush();
    }
    held_.clear();
}

void QtSerialPort::WaitForByte(double seconds) {
    const int milliseconds = static_cast<int>(std::ceil(seconds * kMillisecondsPerSecond));
#ifdef Q_OS_UNIX
    if (IsOpen() && port_.bytesAvailable() == 0 && port_.bytesToWrite() == 0 &&
        SendAndSleep(port_.handle(), held_, milliseconds)) {
        Pump(0);
        return;
    }
#endif
    // What the system did not take goes out as soon as it can. No `flush` here: that takes a full
    // line for a broken one.
    if (IsOpen()) {
        port_.write(held_);
    }
    held_.clear();
    Pump(milliseconds);
}

}  // namespace zelvar
