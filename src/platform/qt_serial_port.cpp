// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_serial_port.h"

#include <QFileInfo>
#include <QSocketNotifier>

#include <array>
#include <cmath>
#include <utility>

#include "platform/line_io.h"

namespace zelvar {

namespace {

constexpr double kMillisecondsPerSecond = 1000;

}  // namespace

QtSerialPort::QtSerialPort(PortTable table) : table_(std::move(table)) {
    port_.setParity(QSerialPort::OddParity);
    port_.setDataBits(QSerialPort::Data8);
    port_.setStopBits(QSerialPort::OneStop);
#ifndef Q_OS_UNIX
    QObject::connect(&port_, &QSerialPort::errorOccurred, &port_, [this] {
        if (IsLineLost(port_)) {
            MarkLost();
        }
    });
#endif
}

QtSerialPort::~QtSerialPort() {
    Close();
}

bool QtSerialPort::Open(int number, int baudRate) {
    Close();
    const QString device = QString::fromStdString(table_.DeviceOf(number));
    // Most numbers of the table have no device; a look spares the attempt to lock and open it.
    const bool isPath = device.startsWith(QLatin1Char('/'));
    if (device.isEmpty() || (isPath && !QFileInfo::exists(device))) {
        return false;
    }
    port_.setPortName(device);
    port_.setBaudRate(baudRate);
    if (!port_.open(QIODevice::ReadWrite)) {
        return false;
    }
    WatchWhileIdle();
    return true;
}

void QtSerialPort::Close() {
    idleWatch_.reset();
    if (port_.isOpen()) {
        port_.close();
    }
    lost_ = false;
}

void QtSerialPort::WatchWhileIdle() {
#ifdef Q_OS_UNIX
    // The only reader shall be this class.
    for (QSocketNotifier* notifier : port_.findChildren<QSocketNotifier*>()) {
        notifier->setEnabled(false);
    }
    idleWatch_ = std::make_unique<QSocketNotifier>(port_.handle(), QSocketNotifier::Read);
    QObject::connect(idleWatch_.get(), &QSocketNotifier::activated, &port_,
                     [this] { LookWhileIdle(); });
#endif
}

void QtSerialPort::LookWhileIdle() {
    // Every exchange begins by discarding what has come before it, so nothing is lost here.
    std::array<std::uint8_t, 256> discarded;
    Read(discarded);
}

void QtSerialPort::MarkLost() {
    if (lost_ || !port_.isOpen()) {
        return;
    }
    lost_ = true;
    if (idleWatch_ != nullptr) {
        idleWatch_->setEnabled(false);
    }
    // Not closed right here: this may be running inside a notifier that closing would delete.
    QMetaObject::invokeMethod(
        &port_, [this] { CloseLost(); }, Qt::QueuedConnection);
}

void QtSerialPort::CloseLost() {
    // The port may have been closed or opened again since.
    if (lost_) {
        idleWatch_.reset();
        port_.close();
        if (onLost_) {
            onLost_();
        }
    }
}

void QtSerialPort::SendAndWait(std::span<const std::uint8_t> bytes, double seconds) {
    const int milliseconds = static_cast<int>(std::ceil(seconds * kMillisecondsPerSecond));
    if (IsOpen() && !SendAndWaitOn(port_, bytes, milliseconds)) {
        MarkLost();
    }
}

std::size_t QtSerialPort::Read(std::span<std::uint8_t> buffer) {
    if (!IsOpen()) {
        return 0;
    }
    const std::optional<std::size_t> count = ReadFrom(port_, buffer);
    if (!count) {
        MarkLost();
    }
    return count.value_or(0);
}

}  // namespace zelvar
