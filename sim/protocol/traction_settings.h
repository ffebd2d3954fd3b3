// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include "sim/protocol/module_status.h"
#include "sim/text/words.h"

namespace zelvar::sim {

/// One setting of the traction modules. Its row in the table below is all that the simulator knows
/// about it: memories, `--explain`, trace, `state` and layout files follow from it.
struct TractionSetting {
    int parameter;  // its number on the line, 1..63
    std::string_view name;
    std::uint8_t min;
    std::uint8_t max;
    std::uint8_t factory;         // as the modules leave the factory
    unsigned types;               // bit t: modules of traction type t have it
    std::span<const Word> words;  // for its values; empty: plain numbers
    std::string_view layoutKey;   // its key in a layout file; empty: none

    constexpr bool IsOf(int type) const { return (types >> type & 1U) != 0; }
};

inline constexpr unsigned kVdF = 1U << static_cast<int>(TractionType::kVdF);
inline constexpr unsigned kVd60 = 1U << static_cast<int>(TractionType::kVd60);
inline constexpr unsigned kQlrxS = 1U << static_cast<int>(TractionType::kQlrxS);

inline constexpr Word kDetectionWords[] = {{"fast", 0}, {"moderate", 1}, {"slow", 2}};
inline constexpr Word kMasterSlaveWords[] = {{"auto", 0}, {"master", 1}, {"slave", 2}};
inline constexpr Word kPowerControlWords[] = {{"single", 0}, {"double", 1}};

inline constexpr int kMasterSlaveParameter = 11;
/// Other modules than QLRX-s report the state of their clock here, from the active memory.
inline constexpr int kAddressParameter = 15;

/// The factory values differ wherever they can, so that a mix-up shows.
inline constexpr TractionSetting kTractionSettings[] = {
    {1, "HFI level", 0, 15, 6, kVdF | kVd60, {}, ""},
    {2, "alarm off-delay", 0, 127, 40, kVdF | kVd60, {}, ""},
    {3, "alarm on-delay", 0, 127, 20, kVdF | kVd60, {}, ""},
    {4, "switch off-delay of bank 0", 0, 7, 1, kVdF | kVd60 | kQlrxS, {}, ""},
    {5, "switch off-delay of bank 1", 0, 7, 2, kVdF | kQlrxS, {}, ""},
    {6, "switch on-delay of bank 0", 0, 7, 3, kVdF | kVd60 | kQlrxS, {}, ""},
    {7, "switch on-delay of bank 1", 0, 7, 4, kVdF | kQlrxS, {}, ""},
    {8, "DC shift", 0, 7, 5, kVdF | kVd60, {}, ""},
    {9, "PWM multiplier", 2, 32, 8, kVdF | kVd60, {}, ""},
    {10, "overcurrent detection", 0, 2, 1, kVdF | kVd60, kDetectionWords, ""},
    {kMasterSlaveParameter, "master/slave mode", 0, 2, 0, kVdF | kVd60, kMasterSlaveWords,
     "master-slave"},
    {12, "power control", 0, 1, 1, kVdF, kPowerControlWords, ""},
    {13, "loop current of loop A", 20, 70, 35, kQlrxS, {}, ""},
    {14, "loop current of loop B", 20, 70, 45, kQlrxS, {}, ""},
    // Each module leaves the factory with its own address.
    {kAddressParameter, "module address", 0, 15, 0, kQlrxS, {}, ""},
};

/// The values of all settings by parameter number; number 0 is not used.
inline constexpr int kTractionParameters =
    1 + std::max_element(std::begin(kTractionSettings), std::end(kTractionSettings),
                         [](const TractionSetting& a, const TractionSetting& b) {
                             return a.parameter < b.parameter;
                         })
            ->parameter;
using TractionSettings = std::array<std::uint8_t, kTractionParameters>;

/// The factory values, but for the address.
constexpr TractionSettings FactoryValues() {
    TractionSettings values{};
    for (const TractionSetting& setting : kTractionSettings) {
        values[setting.parameter] = setting.factory;
    }
    return values;
}

/// Null if there is no such setting.
constexpr const TractionSetting* FindTractionSetting(int parameter) {
    for (const TractionSetting& setting : kTractionSettings) {
        if (setting.parameter == parameter) {
            return &setting;
        }
    }
    return nullptr;
}

/// "HFI level"; "setting 40" for one that does not exist
std::string SettingName(int parameter);
/// "master" or "12"
std::string SettingValueName(int parameter, int value);

}  // namespace zelvar::sim
