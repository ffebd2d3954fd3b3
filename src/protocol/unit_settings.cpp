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
    // Boxes i and i + 4 weigh the same, and both together carry into the next bit: it is meant.
    const int mode = SumOf(boxes, 0, kHalf) + SumOf(boxes, kHalf, kHalf);
    return {kTargetUnit, kConfigLength,
            static_cast<std::uint8_t>(kConfigCode + (permanent ? 1 : 0)),
            static_cast<std::uint8_t>(kModeBit + mode), 0};
}

KBSwitches ReadKBConfigReply(const ReplyBuffer& reply) {
    constexpr int kNibble = 16;
    const int value = (reply[4] % kNibble) * kNibble + reply[3] % kNibble;
    KBSwitches switches{};
    for (std::size_t i = 0; i < switches.size(); ++i) {
        switches[i] = (value >> i & 1) != 0;
    }
    return switches;
}

Command TransparentModeCommand(int index) {
    constexpr int kModeStep = 16;
    return {3, {1, kOptionsCode, static_cast<std::uint8_t>((index + 1) * kModeStep)}};
}

}  // namespace zelvar
