// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_report.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "config/await_answer.h"
#include "protocol/addresses.h"

namespace zelvar {

namespace {

constexpr int kReportCode = 34;

// How many data values the answers have.
constexpr int kDefaultTimeValues = 4;
constexpr int kDeviceValues = 6;

constexpr const char* kPowers[] = {"Normal", "Low", "High", "Unlimited"};
constexpr const char* kInvalidPower = "Invalid setting";
constexpr const char* kFollowsModule = " Default";

// Columns of the report, in characters.
constexpr std::size_t kDeviceWidth = 6;
constexpr std::size_t kTimeWidth = 8;
constexpr std::size_t kDefaultTimeWidth = 4;
constexpr std::size_t kMillisecondsWidth = 6;

Command Request(std::uint8_t count, int module, bool permanent, int device) {
    return {count,
            {0, static_cast<std::uint8_t>(kFamilyJs + JsAddressOf(module)),
             static_cast<std::uint8_t>(kReportCode + (permanent ? kPermanentBit : 0)),
             static_cast<std::uint8_t>(device)}};
}

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
    const auto code = static_cast<std::size_t>(power);
    return code < std::size(kPowers) ? kPowers[code] : kInvalidPower;
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
    for (int device = 0; device < kJsDevices; ++device) {
        text +=
            DeviceRow(device, memory.devices[static_cast<std::size_t>(device)], memory.defaultTime);
    }
    return text;
}

}  // namespace

Command JsDefaultTimeRequest(int module, bool permanent) {
    return Request(3, module, permanent, 0);
}

Command JsDeviceRequest(int module, bool permanent, int device) {
    return Request(4, module, permanent, device);
}

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
    const ReplyBuffer& reply = services_.link.Reply();
    if (!Ask(module, JsDefaultTimeRequest(module, permanent), kDefaultTimeValues)) {
        return false;
    }
    memory.defaultTime = reply[4];
    for (int device = 0; device < kJsDevices; ++device) {
        if (!Ask(module, JsDeviceRequest(module, permanent, device), kDeviceValues)) {
            return false;
        }
        memory.devices[static_cast<std::size_t>(device)] = {reply[5], reply[6]};
    }
    return true;
}

bool JsReportRequest::Ask(int module, const Command& request, int answerValues) {
    if (!services_.link.Transact(request)) {
        return false;
    }
    // An answer repeats the whole request and adds what was asked for.
    const Awaited awaited =
        AwaitAnswer(services_.link, services_.clock, [&](const ReplyBuffer& reply) {
            return (reply[0] & kHeaderCountMask) == answerValues &&
                   std::equal(request.values.begin(), request.values.begin() + request.count,
                              reply.begin() + 1);
        });
    if (awaited == Awaited::Silence) {
        services_.messageBox.Tell("No answer from module " + std::to_string(module),
                                  BoxIcon::Plain);
    }
    services_.progress.Step();
    return awaited == Awaited::Answer;
}

std::string FormatJsReport(const JsConfiguration& configuration) {
    return "JS70#" + std::to_string(configuration.module) + "\n" +
           MemoryText(" Permanent settings:", configuration.permanent) +
           MemoryText(" Active settings:", configuration.active);
}

}  // namespace zelvar
