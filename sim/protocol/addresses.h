// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelvar::sim {

/// Families of module addresses: an address is family + channel * 16 + module.
inline constexpr int kSecondaryFamily = 0;  // the second unit of a VD60
inline constexpr int kTractionFamily = 32;
inline constexpr int kPointFamily = 64;
inline constexpr int kSignalFamily = 96;
inline constexpr int kFamilyMask = 0x60;  // the bits of an address that hold its family

inline constexpr int kModuleAddresses = 128;
inline constexpr int kModulesPerChannel = 16;
inline constexpr int kPointModulesPerChannel = 8;

inline constexpr int kPrimaryLines = 32;
inline constexpr int kTractionLines = 64;  // 32 first units, then 32 second ones
inline constexpr int kPointModules = 16;
inline constexpr int kPointDevices = 64;  // of one point module

inline constexpr int kBlocks = 256;
inline constexpr int kFeedbackInputs = 2048;
inline constexpr int kDevices = 512;  // points and outputs that have a number of their own

constexpr int FamilyOf(int address) {
    return address & kFamilyMask;
}

/// Traction units are numbered 0..31 (first units) and 32..63 (second ones). The number is -1 for
/// an address of another family.
int LineAddress(int line);
int LineAt(int address);

/// Point modules are numbered 0..15 (0..7 channel 0, 8..15 channel 1). The number is -1 for an
/// address that no point module can have.
int PointAddress(int position);
int PointPosition(int address);

/// "traction module 19", "point module 9"
std::string ModuleName(int address);
/// The same after "of": "of the second unit of traction module 19", "of point module 9"
std::string OfModule(int address);
/// That of a traction unit 0..63.
std::string OfTractionUnit(int line);

}  // namespace zelvar::sim
