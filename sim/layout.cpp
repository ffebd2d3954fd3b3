// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "layout.h"

#include <algorithm>

namespace zelvar::sim {

namespace {

constexpr int kSecondType = 1;  // a VD60's second unit reports the VD60's type

struct DefaultModule {
    int address;
    int type;
    int version;
    ModuleState state;
    std::uint8_t masterSlave;  // one master in the whole layout
};

constexpr std::uint8_t kMaster = 1;
constexpr std::uint8_t kSlave = 2;
constexpr int kVdF = static_cast<int>(TractionType::kVdF);
constexpr int kVd60 = static_cast<int>(TractionType::kVd60);
constexpr int kQlrxS = static_cast<int>(TractionType::kQlrxS);

constexpr DefaultModule kDefaultModules[] = {
    // Traction, channel 0.
    {kTractionFamily + 0, kVdF, 1023, ModuleState::kOk, kMaster},
    {kTractionFamily + 1, kVdF, 1023, ModuleState::kIdle, kSlave},
    {kTractionFamily + 2, kVdF, 1010, ModuleState::kFault, kSlave},
    {kTractionFamily + 4, kVd60, 2014, ModuleState::kOk, kSlave},
    {kSecondaryFamily + 4, kSecondType, 2014, ModuleState::kOk, kSlave},
    {kTractionFamily + 5, kVd60, 2014, ModuleState::kFault, kSlave},
    {kSecondaryFamily + 5, kVdF, 2014, ModuleState::kOk, kSlave},  // a wrong type: an error
    {kTractionFamily + 6, kVd60, 2010, ModuleState::kOk, kSlave},  // its second unit is missing
    {kTractionFamily + 8, kQlrxS, 1102, ModuleState::kOk, 0},
    {kTractionFamily + 9, kQlrxS, 0, ModuleState::kIdle, 0},
    // Traction, channel 1.
    {kTractionFamily + 16, kVdF, 1023, ModuleState::kOk, kSlave},
    {kTractionFamily + 19, kVd60, 2014, ModuleState::kOk, kSlave},
    {kSecondaryFamily + 19, kSecondType, 2014, ModuleState::kIdle, kSlave},
    {kTractionFamily + 24, kQlrxS, 1102, ModuleState::kFault, 0},
    // Point motors.
    {kPointFamily + 0, 0, 1201, ModuleState::kOk, 0},
    {kPointFamily + 1, 0, 1201, ModuleState::kHold, 0},
    {kPointFamily + 3, 0, 0, ModuleState::kIdle, 0},
    {kPointFamily + 17, 0, 1201, ModuleState::kOk, 0},
    {kPointFamily + 23, 0, 1200, ModuleState::kOk, 0},
    // Signals.
    {kSignalFamily + 0, 0, 1005, ModuleState::kOk, 0},
    {kSignalFamily + 2, 0, 1005, ModuleState::kIdle, 0},
    {kSignalFamily + 18, 0, 0, ModuleState::kOk, 0},
};

}  // namespace

std::uint8_t StatusByte(int type, ModuleState state) {
    unsigned status = kPresentBit | (static_cast<unsigned>(type) & kTypeMask);
    if (state == ModuleState::kIdle) {
        status |= kIdleBit;
    } else if (state != ModuleState::kOk) {
        status |= kFaultBit;
    }
    return static_cast<std::uint8_t>(status);
}

Layout EmptyLayout() {
    return {};
}

Layout DefaultLayout() {
    Layout layout;
    for (const DefaultModule& module : kDefaultModules) {
        layout.At(module.address) = {StatusByte(module.type, module.state), module.version,
                                     module.masterSlave, 0};
    }
    return layout;
}

Layout KbfLayout() {
    Layout layout = DefaultLayout();
    layout.unitType = static_cast<int>(UnitType::kKbF);
    layout.protocolVersion = 3100;
    layout.dipSwitches = 0x0A;
    return layout;
}

std::optional<Layout> LayoutByName(std::string_view name) {
    struct Named {
        std::string_view name;
        Layout (*make)();
    };
    static constexpr Named kLayouts[] = {
        {"default", &DefaultLayout}, {"kbf", &KbfLayout}, {"none", &EmptyLayout}};
    for (const Named& entry : kLayouts) {
        if (entry.name == name) {
            return entry.make();
        }
    }
    return std::nullopt;
}

int LineAddress(int line) {
    const int primaryLines = kTractionLines / 2;
    return line < primaryLines ? kTractionFamily + line : kSecondaryFamily + line - primaryLines;
}

std::optional<VersionBytes> EncodeVersion(int version) {
    // The places hold 0..15, 0..7, 0..15 and 0..7, so a place can carry more than its digit.
    const int thousands = std::clamp(version / 1000, 0, 15);
    const int afterThousands = version - thousands * 1000;
    const int hundreds = std::clamp(afterThousands / 100, 0, 7);
    const int afterHundreds = afterThousands - hundreds * 100;
    const int tens = std::clamp(afterHundreds / 10, 0, 15);
    const int ones = afterHundreds - tens * 10;
    if (ones < 0 || ones > 7) {
        return std::nullopt;
    }
    return VersionBytes{static_cast<std::uint8_t>((thousands << 3) | hundreds),
                        static_cast<std::uint8_t>((tens << 3) | ones)};
}

}  // namespace zelvar::sim
