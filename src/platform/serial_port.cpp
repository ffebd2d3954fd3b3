// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/serial_port.h"

namespace zelvar {

std::vector<int> FindUsablePorts(SerialPort& port) {
    std::vector<int> usable;
    for (int number = 1; number <= kLastPortNumber; ++number) {
        port.SetPortNumber(number);
        if (port.Open()) {
            usable.push_back(number);
        }
        port.Close();
    }
    return usable;
}

}  // namespace zelvar
