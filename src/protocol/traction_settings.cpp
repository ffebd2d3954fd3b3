// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/traction_settings.h"

#include "protocol/addresses.h"

namespace zelvar {

namespace {

constexpr int kConfigCode = 8;
constexpr int kReplyCode = 10;
constexpr int kSetLength = 3;
constexpr int kGetLength = 2;

constexpr int SecondaryBitOf(int line) {
    return IsSecondary(line) ? kSecondaryBit : 0;
}

ModuleCommand Config(int length, bool permanent, int parameter, int value) {
    return {kTargetVD, static_cast<std::uint8_t>(length), kConfigCode,
            static_cast<std::uint8_t>((permanent ? kPermanentBit : 0) + parameter),
            static_cast<std::uint8_t>(value)};
}

}  // namespace

ModuleCommand VDSetCommand(bool permanent, int parameter, int value) {
    return Config(kSetLength, permanent, parameter, value);
}

ModuleCommand VDGetCommand(bool permanent, int parameter, int value) {
    return Config(kGetLength, permanent, parameter, value);
}

std::optional<VDReply> ReadVDConfigReply(const Reply& reply, int line) {
    if (reply[2] != VDAddress(line) || reply[3] != SecondaryBitOf(line) + kReplyCode) {
        return std::nullopt;
    }
    return VDReply{reply[4], reply[5]};
}

std::optional<int> ReadVDAnswer(const Reply& reply, int line, int parameter) {
    // The answer's code differs from the command's in its low three bits alone.
    constexpr int kCodeMask = 0x78;
    if (!reply.HasMark() || !reply.Is(5, {0, VDAddress(line)}) ||
        (reply[3] & kCodeMask) != SecondaryBitOf(line) + kConfigCode || reply[4] != parameter) {
        return std::nullopt;
    }
    return reply[5];
}

std::vector<CommandRow> TractionCommands() {
    using Arguments = std::span<const int>;
    const CommandParameter line{"line", 0, kVDLines - 1};
    const CommandParameter permanent{"permanent", 0, 1};
    const CommandParameter parameter{"parameter", 1, kPermanentBit - 1};
    return {
        {"traction-set",
         {line, permanent, parameter, {"value", 0, 127}},
         [](Arguments a) { return CommandForVD(VDSetCommand(a[1] != 0, a[2], a[3]), a[0]); }},
        {"traction-get",
         {line, permanent, parameter},
         [](Arguments a) { return CommandForVD(VDGetCommand(a[1] != 0, a[2]), a[0]); }},
        {"traction-erase", {line}, [](Arguments a) { return CommandForVD(kVDErase, a[0]); }},
    };
}

}  // namespace zelvar
