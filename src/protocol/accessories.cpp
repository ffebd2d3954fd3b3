// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/accessories.h"

#include "protocol/payload.h"

namespace zelvar {

namespace {

constexpr int kPointCode = 16;
constexpr int kPointThrown = 4;

constexpr int kPointModuleFamily = 64;
/// The first half of the modules is on channel 0, the second on channel 1.
constexpr int kPointModulesPerChannel = 8;
constexpr int kModulesPerChannel = 16;
constexpr int kModulePointCode = 17;
constexpr int kModulePointThrown = 8;

constexpr int kSignalFamily = 96;
constexpr int kSignalAspectCode = 68;

constexpr int kOutputCode = 24;

}  // namespace

Command SetPoint(int device, bool thrown) {
    return CommandOf(
        {kPointCode + (thrown ? kPointThrown : 0) + HighPart(device), LowPart(device)});
}

Command SetModulePoint(int module, int device, bool thrown) {
    const int address = kPointModuleFamily +
                        kModulesPerChannel * (module / kPointModulesPerChannel) +
                        module % kPointModulesPerChannel;
    return CommandOf({0, address, kModulePointCode + (thrown ? kModulePointThrown : 0), device});
}

Command SetSignalAspect(int module, int pin, int aspect) {
    return CommandOf({0, kSignalFamily + module, kSignalAspectCode, 0, 1, pin, aspect});
}

Command SetOutput(int output, int instruction, int parameter) {
    return CommandOf({kOutputCode + HighPart(output), LowPart(output), instruction, parameter});
}

}  // namespace zelvar
