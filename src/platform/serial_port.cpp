// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/serial_port.h"

namespace zelvar {

std::vector<int> FindUsablePorts(SerialPort& port, int baudRate) {
    std::vector<int> usable;
    for (int number = 1; number <= kLastPortNumber; ++number) {
        if (port.Open(number, baudRate)) {
            usable.push_back(number);
        }
        port.Close();
    }
    return usable;
}

}  // namespace zelvar
