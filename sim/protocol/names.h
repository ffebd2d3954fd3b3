// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "sim/text/words.h"

namespace zelvar::sim {

/// Words for the values that travel on the line. A value without a word is shown as its number.

inline constexpr Word kClockWords[] = {{"good", 0}, {"none", 1}, {"bad", 2}, {"degraded", 4}};
inline constexpr Word kPowerWords[] = {{"normal", 0}, {"low", 1}, {"high", 2}, {"unlimited", 3}};

std::string ClockName(int clock);
/// The power of a point motor: "high"
std::string PowerName(int power);
/// Sixtieths of a second: "15/60 s"
std::string TimeName(int sixtieths);
/// The same for a device of a point module, where 0 is "the default".
std::string DeviceTimeName(int sixtieths);

/// The switches that are on in the unit's configuration and its options; "none"
std::string ConfigurationName(int configuration);
std::string OptionsName(int options);

/// The functions of a DCC decoder from number `first` on, by the bits of `functions`: "F1, F4"
std::string DccFunctionsName(int functions, int first = 0, std::string_view light = "F0");
/// Those of an MCC decoder: "light, F1"
std::string MccFunctionsName(int functions);

/// The half steps 0..30 that a speed code of an MCC command stands for; 0 for the emergency stop,
/// code 0, too.
int MccHalfSteps(int code);
/// "3.5 of 15"
std::string HalfStepsName(int halfSteps);

std::string DirectionName(int forward);
std::string PositionName(int thrown);
std::string OnOffName(int on);

/// "a, b, c"; `none` when there are none
std::string Joined(std::span<const std::string> words, std::string_view none = "none");

}  // namespace zelvar::sim
