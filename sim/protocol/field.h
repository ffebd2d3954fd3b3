// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "sim/protocol/addresses.h"
#include "sim/protocol/pattern.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// Where a number stands in the data values of a frame: in the bits of one value and, counted in
/// units of `highUnit`, in those of another one.
struct Field {
    std::uint8_t index;
    std::uint8_t mask = kValueMask;
    std::uint8_t highIndex = 0;
    std::uint8_t highMask = 0;
    int highUnit = 0;

    constexpr int In(const Payload& data) const {
        return (data[index] & mask) + (data[highIndex] & highMask) * highUnit;
    }
};

/// Some bits of one value.
constexpr Field Part(int index, int mask) {
    return {static_cast<std::uint8_t>(index), static_cast<std::uint8_t>(mask)};
}
/// A whole value.
constexpr Field Whole(int index) {
    return Part(index, kValueMask);
}
/// A number above 127: its high bits are the bits `highMask` of one value, the rest is the next.
constexpr Field Wide(int index, int highMask) {
    return {static_cast<std::uint8_t>(index + 1), kValueMask, static_cast<std::uint8_t>(index),
            static_cast<std::uint8_t>(highMask), kPayloadRange};
}
/// A number above 127 with its low value first.
constexpr Field WideLowFirst(int index) {
    return {static_cast<std::uint8_t>(index), kValueMask, static_cast<std::uint8_t>(index + 1),
            kValueMask, kPayloadRange};
}
/// A byte in two halves of four bits, the low one first.
inline constexpr int kHalfRange = 16;
constexpr Field Halves(int index) {
    return {static_cast<std::uint8_t>(index), kHalfRange - 1, static_cast<std::uint8_t>(index + 1),
            kHalfRange - 1, kHalfRange};
}

/// First values of commands and replies.
inline constexpr int kToModule = 0;
inline constexpr int kToUnit = 1;

/// Blocks 0..255, points and outputs 0..511.
inline constexpr Field kBlock = Wide(0, 1);
inline constexpr Field kDevice = Wide(0, 3);

/// Speed 0..63 of a block, and its direction.
inline constexpr int kForwardBit = 64;
inline constexpr Field kBlockSpeed = Part(2, kForwardBit - 1);
inline constexpr Field kBlockForward = Part(2, kForwardBit);

/// The permanent memory of a module, in a parameter or a code; that of the unit, in a code.
inline constexpr int kPermanentBit = 64;
inline constexpr int kUnitPermanentBit = 1;
inline constexpr Field kUnitPermanent = Part(1, kUnitPermanentBit);

/// Settings of traction units: which unit (the second one of a VD60 has a bit in the code), which
/// setting, and of which memory.
inline constexpr int kSecondaryBit = 16;
inline constexpr int kTractionConfigureCode = 8;
inline constexpr int kTractionAnswerCode = 10;
inline constexpr Field kTractionLine{1, kPrimaryLines - 1, 2, kSecondaryBit,
                                     kPrimaryLines / kSecondaryBit};
inline constexpr Field kTractionParameter = Part(3, kPermanentBit - 1);
inline constexpr Field kTractionPermanent = Part(3, kPermanentBit);
inline constexpr ValuePattern kToTraction = Bits(kFamilyMask, kTractionFamily);

/// Settings of point modules: the module's address, the memory, the device 0..63.
inline constexpr int kPointSettingsCode = 34;  // of a request and of its answer
inline constexpr Field kModuleAddress = Whole(1);
inline constexpr Field kPointPermanent = Part(2, kPermanentBit);
inline constexpr Field kPointDevice = Whole(3);
inline constexpr ValuePattern kToPoints = Bits(kFamilyMask, kPointFamily);

/// Requests to the unit that its answer repeats in its second value.
inline constexpr int kProtocolVersionCode = 2;
inline constexpr int kTableCode = 3;
inline constexpr int kUnitTypeCode = 10;
inline constexpr int kModuleStatusCode = 11;
inline constexpr int kGetConfigurationCode = 14;

/// The status tables, by the number in a request and in the high half of the answer's third value.
enum StatusTable {
    kDipSwitchTable = 0,
    kPresentTable = 2,
    kFaultTable,
    kTypeTable,
    kPointTable = 6
};
inline constexpr int kModulesPerTableValue = 4;  // one bit each in the low half of a value

}  // namespace zelvar::sim
