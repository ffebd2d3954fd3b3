// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/unit_settings.h"

#include <cstddef>

namespace zelvar {

namespace {

constexpr std::uint8_t kConfigLength = 4;
constexpr int kConfigCode = 6;
constexpr int kGetCode = 8;
constexpr std::uint8_t kOptionsCode = 5;
/// The configuration byte travels in halves of this many switches.
constexpr std::size_t kHalf = 4;

/// The sum of 2^i over the ticked boxes first + i.
int SumOf(const KBSwitches& boxes, std::size_t first, std::size_t count) {
    int sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        sum += boxes[first + i] ? 1 << i : 0;
    }
    return sum;
}

/// @param bits switch i is ticked when bit i is set
KBSwitches SwitchesOf(int bits) {
    KBSwitches switches{};
    for (std::size_t i = 0; i < switches.size(); ++i) {
        switches[i] = (bits >> i & 1) != 0;
    }
    return switches;
}

template <int button>
Command BuildConfiguration(std::span<const int> a) {
    return CommandForUnit(KBConfigCommand(button, a[0] != 0, SwitchesOf(a[1])));
}

template <int index>
Command BuildTransparentMode(std::span<const int> /*arguments*/) {
    return TransparentModeCommand(index);
}

}  // namespace

ModuleCommand KBConfigCommand(int button, bool permanent, const KBSwitches& switches) {
    return {kTargetUnit, kConfigLength,
            static_cast<std::uint8_t>(button * kGetCode + kConfigCode + (permanent ? 1 : 0)),
            static_cast<std::uint8_t>(SumOf(switches, 0, kHalf)),
            static_cast<std::uint8_t>(SumOf(switches, kHalf, kHalf))};
}

ModuleCommand KBOptionsCommand(const KBSwitches& options) {
    return {kTargetUnit, 3, kOptionsCode, static_cast<std::uint8_t>(SumOf(options, 0, kKBSwitches)),
            0};
}

ModuleCommand Js64DeviceModeCommand(bool permanent, const KBSwitches& boxes) {
    constexpr int kModeBit = 16;
    // Boxes i and i + 4 weigh the same, and both together carry into the next bit. This is
    // intentional.
    const int mode = SumOf(boxes, 0, kHalf) + SumOf(boxes, kHalf, kHalf);
    return {kTargetUnit, kConfigLength,
            static_cast<std::uint8_t>(kConfigCode + (permanent ? 1 : 0)),
            static_cast<std::uint8_t>(kModeBit + mode), 0};
}

KBSwitches ReadKBConfigReply(const Reply& reply) {
    constexpr int kNibble = 16;
    const int value = (reply[4] % kNibble) * kNibble + reply[3] % kNibble;
    return SwitchesOf(value);
}

Command TransparentModeCommand(int index) {
    constexpr int kModeStep = 16;
    return CommandOf({1, kOptionsCode, (index + 1) * kModeStep});
}

std::vector<CommandRow> UnitCommands() {
    using Arguments = std::span<const int>;
    const CommandParameter permanent{"permanent", 0, 1};
    const CommandParameter switches{"switches", 0, 255};
    return {
        {"unit-set-configuration", {permanent, switches}, &BuildConfiguration<0>},
        {"unit-set-device-mode",
         {permanent, {"boxes", 0, 255}},
         [](Arguments a) {
             return CommandForUnit(Js64DeviceModeCommand(a[0] != 0, SwitchesOf(a[1])));
         }},
        {"unit-get-configuration", {permanent, switches}, &BuildConfiguration<1>},
        {"unit-set-options",
         {{"options", 0, 127}},
         [](Arguments a) { return CommandForUnit(KBOptionsCommand(SwitchesOf(a[0]))); }},
        {"transparent-channel-0", {}, &BuildTransparentMode<0>},
        {"transparent-channel-1", {}, &BuildTransparentMode<1>},
        {"transparent-boot-loader", {}, &BuildTransparentMode<2>},
    };
}

}  // namespace zelvar
