// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvar {

enum class PortNaming { Linux, Windows };

/// Which device stands behind a port number.
class PortTable {
  public:
    /// @param naming decides the default table: `COMn` on Windows; on Linux 1-4 are ttyS0-3,
    /// 5-12 ttyUSB0-7 and 13-16 ttyACM0-3.
    /// @param override when given, device paths for the ports 1, 2, 3 ... that replace that table,
    /// separated by ':' (on Windows by ';'); an empty place leaves its number without a device.
    explicit PortTable(PortNaming naming, std::optional<std::string_view> override = {});

    /// The table of the running platform and of the environment variable `ZELVARCONFIG_PORTS`.
    static PortTable FromEnvironment();

    /// @return the device path, or an empty string when no device has that number.
    std::string DeviceOf(int portNumber) const;

  private:
    std::vector<std::string> devices_;
};

}  // namespace zelvar
