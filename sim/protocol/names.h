// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "sim/unit/layout.h"

namespace zelvar::sim {

/// Words for the values that travel on the line, for people to read. A value without a name is
/// told as its number.

/// "3.11 B"; "none" for 0.
std::string VersionName(int version);
/// The version in two bytes, as a number: 0x19, 0x0A is 3112.
int DecodeVersion(int high, int low);

std::string UnitTypeName(int type);
std::string TractionTypeName(int type);
/// A module by its address 0..127: "traction module 19", "point module 9".
std::string ModuleName(int address);
/// The same behind "of": "of the second unit of traction module 19", "of point module 9".
std::string OfModule(int address);
/// The family of an address 0..127.
int FamilyOf(int address);
/// What a status byte says, by the family of the module's address: "VD60, OK" or "absent".
std::string StatusName(int address, int status);
/// The state alone: "absent", "idle", "fault", "hold" or "OK".
std::string_view ModuleStateName(int address, int status);

/// The setting of a traction module by its number 1..15: "HFI level". Number 15 is the address in
/// a QLRX-s and the state of the clock elsewhere.
std::string SettingName(int parameter);
/// Its value: "master" or "12".
std::string SettingValueName(int parameter, int value);
std::string ClockName(int clock);
/// The power of a point motor: "high".
std::string PowerName(int power);
/// Sixtieths of a second: "15/60 s"; `zero` in place of 0.
std::string TimeName(int sixtieths, std::string_view zero = "0/60 s");

/// The switches that are on in the unit's configuration and its options; "none".
std::string ConfigurationName(int configuration);
std::string OptionsName(int options);
/// The functions that are on, for the eight of an MCC locomotive; "none".
std::string MccFunctionsName(int functions);
/// An MCC speed in half steps 0..30: "3.5 of 15".
std::string HalfStepsName(int halfSteps);

std::string_view DirectionName(bool forward);
std::string_view PositionName(bool thrown);

/// "a, b, c"; `none` when there are none.
std::string Joined(std::span<const std::string> words, std::string_view none = "none");

}  // namespace zelvar::sim
