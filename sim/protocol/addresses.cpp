// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/addresses.h"

namespace zelvar::sim {

int LineAddress(int line) {
    return line < kPrimaryLines ? kTractionFamily + line : kSecondaryFamily + line - kPrimaryLines;
}

int LineAt(int address) {
    switch (FamilyOf(address)) {
        case kTractionFamily:
            return address - kTractionFamily;
        case kSecondaryFamily:
            return address - kSecondaryFamily + kPrimaryLines;
        default:
            return -1;
    }
}

int PointAddress(int position) {
    return kPointFamily + position / kPointModulesPerChannel * kModulesPerChannel +
           position % kPointModulesPerChannel;
}

int PointPosition(int address) {
    const int slot = address - kPointFamily;
    const int module = slot % kModulesPerChannel;
    if (FamilyOf(address) != kPointFamily || module >= kPointModulesPerChannel) {
        return -1;
    }
    return slot / kModulesPerChannel * kPointModulesPerChannel + module;
}

std::string ModuleName(int address) {
    const int family = FamilyOf(address);
    const std::string number = std::to_string(address - family);
    if (family == kSecondaryFamily) {
        return "second unit of traction module " + number;
    }
    if (family == kTractionFamily) {
        return "traction module " + number;
    }
    if (family == kSignalFamily) {
        return "signal module " + number;
    }
    const int position = PointPosition(address);
    return position < 0 ? "no point module (address " + std::to_string(address) + ")"
                        : "point module " + std::to_string(position);
}

std::string OfModule(int address) {
    return (FamilyOf(address) == kSecondaryFamily ? "of the " : "of ") + ModuleName(address);
}

std::string OfTractionUnit(int line) {
    return OfModule(LineAddress(line));
}

}  // namespace zelvar::sim
