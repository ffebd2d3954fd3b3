// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar {

// A module's address value is its family + channel * 16 + module, on channels 0 and 1.
constexpr int kFamilyVDSecondary = 0;
constexpr int kFamilyVD = 32;
constexpr int kFamilyJs = 64;
constexpr int kFamilyYR = 96;
constexpr int kModulesPerChannel = 16;

/// Lines 0..31 are primary units: module 0..15 of channel 0, then of channel 1. Line m + 32 is the
/// secondary unit of the VD60 in line m.
constexpr int kVDPrimaryLines = 32;
constexpr int kVDLines = 64;

/// Positions 0..7 are on channel 0, 8..15 on channel 1.
constexpr int kJsModules = 16;
constexpr int kJsModulesPerChannel = 8;
constexpr int kYRModules = 32;

/// Whether a line 0..63 is the secondary unit of a VD60.
constexpr bool IsSecondary(int line) {
    return line >= kVDPrimaryLines;
}

/// The line of the module that a unit belongs to. @param line 0..63 @return 0..31
constexpr int PrimaryLineOf(int line) {
    return line % kVDPrimaryLines;
}

/// The module field of a point-motor module's address. @param position 0..15
/// @return 0..7 on channel 0, 16..23 on channel 1
constexpr int JsAddressOf(int position) {
    return position / kJsModulesPerChannel * kModulesPerChannel + position % kJsModulesPerChannel;
}

/// The address to which the settings of a line go, primary or secondary unit. @param line 0..63
constexpr int VDAddress(int line) {
    return kFamilyVD + PrimaryLineOf(line);
}

/// @param position 0..15
constexpr int JsAddress(int position) {
    return kFamilyJs + JsAddressOf(position);
}

/// @param module 0..31
constexpr int YRAddress(int module) {
    return kFamilyYR + module;
}

/// The address of a unit in status requests alone. @param line 0..63
constexpr int VDStatusAddress(int line) {
    return IsSecondary(line) ? kFamilyVDSecondary + PrimaryLineOf(line) : kFamilyVD + line;
}

}  // namespace zelvar
