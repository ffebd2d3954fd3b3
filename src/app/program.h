// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/main_window.h"
#include "platform/clock.h"
#include "platform/port_table.h"
#include "platform/qt_message_box.h"
#include "platform/qt_serial_port.h"
#include "platform/qt_timer.h"

namespace zelvar {

/// The whole program on this computer: its serial ports, timer, clock and message boxes, and the
/// main window on top. It needs a QApplication and runs in its event loop.
class Program {
  public:
    Program();

    MainWindow& Window() { return window_; }

  private:
    PortTable table_ = PortTable::FromEnvironment();
    QtSerialPort port_{table_};
    QtTimer pollTimer_{kPollInterval};
    SteadyClock clock_;
    QtMessageBox messageBox_;
    MainWindow window_;
};

}  // namespace zelvar
