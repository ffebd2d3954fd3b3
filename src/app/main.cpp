// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QSerialPortInfo>

#include "app/main_window.h"
#include "controls/naming.h"
#include "platform/qt_message_box.h"
#include "platform/qt_serial_port.h"
#include "platform/qt_timer.h"

namespace {

/// The device path of a port and, when the system knows one, the adapter's description.
QString DescribePort(const zelvar::PortTable& table, int number) {
    const QString device = zelvar::Text(table.DeviceOf(number));
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        const bool same = info.systemLocation() == device || info.portName() == device;
        if (same && !info.description().isEmpty()) {
            return QStringLiteral("%1 (%2)").arg(device, info.description());
        }
    }
    return device;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // The display name stays unset: Qt would append it to the windows' titles.
    QApplication::setApplicationName(QString::fromLatin1(zelvar::kApplicationTitle));

    const zelvar::PortTable table = zelvar::PortTable::FromEnvironment();
    zelvar::HandlerGate gate;
    zelvar::QtSerialPort port(table);
    zelvar::QtTimer pollTimer(gate, zelvar::kPollInterval);
    const zelvar::SteadyClock clock;
    zelvar::QtMessageBox messageBox;
    zelvar::MainWindow window({port, pollTimer, clock, messageBox, gate,
                               [&table](int number) { return DescribePort(table, number); }});
    pollTimer.SetHandler([&window] { window.Timer1_Timer(); });
    messageBox.SetParent(&window);
    messageBox.SetBeforeShow([&window] { window.Bar().PumpCancel(); });
    window.show();
    return QApplication::exec();
}
