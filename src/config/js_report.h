// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "link/services.h"
#include "protocol/point_settings.h"

namespace zelvar {

/// One of a module's two memories.
struct JsMemory {
    /// In sixtieths of a second, 0..127.
    int defaultTime = 0;
    std::array<JsDeviceSettings, kJsDevices> devices{};
};

struct JsConfiguration {
    /// 0..15
    int module = 0;
    JsMemory permanent;
    JsMemory active;
};

/// Asks a point-motor module for everything that it has stored, in both memories.
class JsReportRequest {
  public:
    explicit JsReportRequest(const Services& services) : services_(services) {}

    /// Checks the port and asks. @param module 0..15
    /// @return nothing after a failed exchange, or when the module does not answer, which the user
    /// reads
    std::optional<JsConfiguration> Run(int module);

  private:
    bool AskMemory(int module, bool permanent, JsMemory& memory);
    /// @param take reads a reply; @return whether it is the answer
    bool Ask(int module, const Command& request, const std::function<bool(const Reply&)>& take);

    Services services_;
};

/// The report as the user reads it, in a fixed-pitch font; lines end with "\n".
std::string FormatJsReport(const JsConfiguration& configuration);

}  // namespace zelvar
