// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include <QSerialPortInfo>

#include "controls/naming.h"

namespace zelvar {

namespace {

/// The device path of a port and, when the system knows one, the adapter's description.
QString DescribePort(const PortTable& table, int number) {
    QString device = ToQString(table.DeviceOf(number));
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        const bool same = info.systemLocation() == device || info.portName() == device;
        if (same && !info.description().isEmpty()) {
            return QStringLiteral("%1 (%2)").arg(device, info.description());
        }
    }
    return device;
}

}  // namespace

Program::Program()
    : window_({port_, pollTimer_, clock_, messageBox_,
               [this](int number) { return ToQString(table_.DeviceOf(number)); },
               [this](int number) { return DescribePort(table_, number); }}) {
    pollTimer_.SetHandler([this] { window_.Timer1_Timer(); });
    messageBox_.SetParent(&window_);
    messageBox_.SetBeforeShow([this] { window_.Bar().PumpCancel(); });
}

}  // namespace zelvar
