// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/port_table.h"

#include <cstddef>
#include <cstdlib>

#include "platform/serial_port.h"

namespace zelvar {

namespace {

std::vector<std::string> DefaultDevices(PortNaming naming) {
    std::vector<std::string> devices;
    const auto addRange = [&devices](const std::string& stem, int first, int count) {
        for (int n = first; n < first + count; ++n) {
            devices.push_back(stem + std::to_string(n));
        }
    };
    if (naming == PortNaming::Windows) {
        addRange("COM", 1, kLastPortNumber);
    } else {
        addRange("/dev/ttyS", 0, 4);
        addRange("/dev/ttyUSB", 0, 8);
        addRange("/dev/ttyACM", 0, 4);
    }
    return devices;
}

std::vector<std::string> SplitDevices(std::string_view list, char separator) {
    std::vector<std::string> devices;
    while (devices.size() < static_cast<std::size_t>(kLastPortNumber)) {
        const std::size_t end = list.find(separator);
        devices.emplace_back(list.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        list.remove_prefix(end + 1);
    }
    return devices;
}

}  // namespace

PortTable::PortTable(PortNaming naming, std::optional<std::string_view> override)
    : devices_(override ? SplitDevices(*override, naming == PortNaming::Windows ? ';' : ':')
                        : DefaultDevices(naming)) {}

PortTable PortTable::FromEnvironment() {
#ifdef _WIN32
    constexpr PortNaming naming = PortNaming::Windows;
#else
    constexpr PortNaming naming = PortNaming::Linux;
#endif
    const char* override = std::getenv("ZELVARCONFIG_PORTS");
    if (override == nullptr) {
        return PortTable(naming);
    }
    return PortTable(naming, override);
}

std::string PortTable::DeviceOf(int portNumber) const {
    if (portNumber < 1 || static_cast<std::size_t>(portNumber) > devices_.size()) {
        return {};
    }
    return devices_[static_cast<std::size_t>(portNumber) - 1];
}

}  // namespace zelvar
