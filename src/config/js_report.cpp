// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_report.h"

#include <algorithm>
#include <cstddef>

#include "config/await_answer.h"

namespace zelvar {

namespace {

constexpr std::string_view kInvalidPower = "Invalid setting";
constexpr const char* kFollowsModule = " Default";

// Columns of the report, in characters.
constexpr std::size_t kDeviceWidth = 6;
constexpr std::size_t kTimeWidth = 8;
constexpr std::size_t kDefaultTimeWidth = 4;
constexpr std::size_t kMillisecondsWidth = 6;

std::string RightAligned(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

/// @param sixtieths 0..127
int Milliseconds(int sixtieths) {
    constexpr int kPerSecond = 60;
    return (sixtieths * 1000 + kPerSecond / 2) / kPerSecond;
}

std::string TimeText(int sixtieths, std::size_t width) {
    return RightAligned(sixtieths, width) +
           RightAligned(Milliseconds(sixtieths), kMillisecondsWidth) + " ms";
}

std::string PowerText(int power) {
    const auto code = static_cast<unsigned>(power);
    return std::string(code < kJsPowers.size() ? kJsPowers[code] : kInvalidPower);
}

std::string DeviceRow(int device, const JsDeviceSettings& settings, int defaultTime) {
    const bool follows = settings.time == 0;
    const std::string mark(kFollowsModule);
    return RightAligned(device, kDeviceWidth) +
           TimeText(follows ? defaultTime : settings.time, kTimeWidth) +
           (follows ? mark : std::string(mark.size(), ' ')) + "  " + PowerText(settings.power) +
           "\n";
}

std::string MemoryText(const char* heading, const JsMemory& memory) {
    std::string text = std::string("\n") + heading + "\n";
    text += "Default Timing =" + TimeText(memory.defaultTime, kDefaultTimeWidth) + "\n";
    text += "Device  Timing  Power\n";
    for (int device = 0; const JsDeviceSettings& settings : memory.devices) {
        text += DeviceRow(device++, settings, memory.defaultTime);
    }
    return text;
}

}  // namespace

std::optional<JsConfiguration> JsReportRequest::Run(int module) {
    constexpr int kRequests = 2 * (1 + kJsDevices);
    if (!services_.link.CheckPort()) {
        return std::nullopt;
    }
    const ProgressScope progress(services_.progress, "Asking JS70 module " + std::to_string(module),
                                 kRequests);
    JsConfiguration configuration;
    configuration.module = module;
    if (!AskMemory(module, true, configuration.permanent) ||
        !AskMemory(module, false, configuration.active)) {
        return std::nullopt;
    }
    return configuration;
}

bool JsReportRequest::AskMemory(int module, bool permanent, JsMemory& memory) {
    const Command timeRequest = JsDefaultTimeRequest(module, permanent);
    const bool answered = Ask(module, timeRequest, [&](const Reply& reply) {
        const std::optional<int> time = ReadJsDefaultTime(reply, timeRequest);
        memory.defaultTime = time.value_or(0);
        return time.has_value();
    });
    if (!answered) {
        return false;
    }
    for (int device = 0; JsDeviceSettings & settings : memory.devices) {
        const Command request = JsDeviceRequest(module, permanent, device++);
        const bool deviceAnswered = Ask(module, request, [&](const Reply& reply) {
            const std::optional<JsDeviceSettings> read = ReadJsDevice(reply, request);
            settings = read.value_or(JsDeviceSettings());
            return read.has_value();
        });
        if (!deviceAnswered) {
            return false;
        }
    }
    return true;
}

bool JsReportRequest::Ask(int module, const Command& request,
                          const std::function<bool(const Reply&)>& take) {
    const Awaited awaited = AskModule(services_.link, services_.clock, request, take);
    if (awaited == Awaited::Silence) {
        services_.messageBox.Tell("No answer from module " + std::to_string(module),
                                  BoxIcon::Plain);
    }
    if (awaited != Awaited::Failure) {
        services_.progress.Step();
    }
    return awaited == Awaited::Answer;
}

std::string FormatJsReport(const JsConfiguration& configuration) {
    return "JS70#" + std::to_string(configuration.module) + "\n" +
           MemoryText(" Permanent settings:", configuration.permanent) +
           MemoryText(" Active settings:", configuration.active);
}

}  // namespace zelvar
