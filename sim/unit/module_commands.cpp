// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

using Answer = std::optional<Payload>;

constexpr int kPermanentBit = 64;
constexpr int kParameterMask = 0x3F;
constexpr int kSecondaryBit = 16;  // in a traction command's code: the second unit of a VD60
constexpr int kPrimaryLines = 32;
constexpr int kConfigureCode = 8;
constexpr int kConfigurationCode = 10;  // of the answer

/// A module's answer: on its way through the channel until a later poll.
Answer FromModule(UnitState& state, int address, const Payload& answer) {
    if (state.muted.test(static_cast<std::size_t>(address))) {
        return std::nullopt;
    }
    if (state.answerDelay == 0) {
        return answer;
    }
    state.reports.Push(answer, state.answerDelay);
    return std::nullopt;
}

int TractionLine(const Payload& command) {
    const int second = (command[2] & kSecondaryBit) != 0 ? kPrimaryLines : 0;
    return command[1] % kPrimaryLines + second;
}

/// The value that a module reports for a parameter 1..15.
int ReportedSetting(const UnitState& state, int line, std::size_t parameter, bool permanent) {
    const ModuleSlot& slot = state.layout.At(LineAddress(line));
    const bool hasClock = (slot.status & kTypeMask) != static_cast<int>(TractionType::kQlrxS);
    if (parameter == kAddressParameter && !permanent && hasClock) {
        return slot.clock;
    }
    return state.memories.traction[static_cast<std::size_t>(line)].Part(permanent)[parameter];
}

Answer GetTractionSetting(UnitState& state, const Payload& command) {
    const int line = TractionLine(command);
    const int address = LineAddress(line);
    const int parameter = command[3] & kParameterMask;
    if (!state.layout.At(address).Present() || parameter == 0 || parameter >= kTractionParameters) {
        return std::nullopt;
    }
    const bool permanent = (command[3] & kPermanentBit) != 0;
    const int code = (command[2] & kSecondaryBit) + kConfigurationCode;
    return FromModule(
        state, address,
        {0, command[1], code, command[3],
         ReportedSetting(state, line, static_cast<std::size_t>(parameter), permanent)});
}

Answer SetTractionSetting(UnitState& state, const Payload& command) {
    const int line = TractionLine(command);
    const int parameter = command[3] & kParameterMask;
    if (state.layout.At(LineAddress(line)).Present() && parameter > 0 &&
        parameter < kTractionParameters) {
        const bool permanent = (command[3] & kPermanentBit) != 0;
        state.memories.traction[static_cast<std::size_t>(line)].Part(
            permanent)[static_cast<std::size_t>(parameter)] = static_cast<std::uint8_t>(command[4]);
    }
    return std::nullopt;
}

Answer EraseTractionSettings(UnitState& state, const Payload& command) {
    const int line = TractionLine(command);
    if (state.layout.At(LineAddress(line)).Present()) {
        state.memories.traction[static_cast<std::size_t>(line)].SetBoth(
            FactoryTractionSettings(line));
    }
    return std::nullopt;
}

/// The memory of the point module a command addresses; null when there is no such module.
Memory<PointSettings>* PointMemory(UnitState& state, const Payload& command) {
    const int position = PointPosition(command[1]);
    if (position < 0 || !state.layout.At(command[1]).Present()) {
        return nullptr;
    }
    return &state.memories.points[static_cast<std::size_t>(position)];
}

/// The part of that memory that the command's code names.
PointSettings* PointPart(UnitState& state, const Payload& command) {
    Memory<PointSettings>* memory = PointMemory(state, command);
    return memory == nullptr ? nullptr : &memory->Part((command[2] & kPermanentBit) != 0);
}

PointDevice& Device(PointSettings& settings, int number) {
    return settings.devices[static_cast<std::size_t>(number % kPointDevices)];
}

Answer SetDefaultTime(UnitState& state, const Payload& command) {
    if (PointSettings* settings = PointPart(state, command); settings != nullptr) {
        settings->defaultTime = static_cast<std::uint8_t>(command[3]);
    }
    return std::nullopt;
}

Answer SetDeviceTime(UnitState& state, const Payload& command) {
    if (PointSettings* settings = PointPart(state, command); settings != nullptr) {
        Device(*settings, command[3]).time = static_cast<std::uint8_t>(command[4]);
    }
    return std::nullopt;
}

Answer SetDevicePower(UnitState& state, const Payload& command) {
    if (PointSettings* settings = PointPart(state, command); settings != nullptr) {
        Device(*settings, command[3]).power = static_cast<std::uint8_t>(command[4]);
    }
    return std::nullopt;
}

Answer ErasePointSettings(UnitState& state, const Payload& command) {
    if (Memory<PointSettings>* memory = PointMemory(state, command); memory != nullptr) {
        memory->SetBoth(FactoryPointSettings());
    }
    return std::nullopt;
}

Answer GetDefaultTime(UnitState& state, const Payload& command) {
    const PointSettings* settings = PointPart(state, command);
    if (settings == nullptr) {
        return std::nullopt;
    }
    Payload answer = command;
    answer.Append(settings->defaultTime);
    return FromModule(state, command[1], answer);
}

Answer GetDevice(UnitState& state, const Payload& command) {
    PointSettings* settings = PointPart(state, command);
    if (settings == nullptr) {
        return std::nullopt;
    }
    const PointDevice& device = Device(*settings, command[3]);
    Payload answer = command;
    answer.Append(device.time);
    answer.Append(device.power);
    return FromModule(state, command[1], answer);
}

constexpr ValuePattern kToModule = Is(0);
constexpr ValuePattern kTraction = Bits(0x60, kTractionFamily);
constexpr ValuePattern kPoints = Bits(0x60, kPointFamily);
constexpr ValuePattern kConfigure = Bits(0x7F - kSecondaryBit, kConfigureCode);

constexpr ValuePattern WithPermanent(int code) {
    return Bits(0x7F - kPermanentBit, code);
}

constexpr CommandRow kModuleCommands[] = {
    {"traction-erase",
     {kToModule, kTraction, kConfigure, Is(kPermanentBit)},
     &EraseTractionSettings},
    {"traction-get", {kToModule, kTraction, kConfigure, Any()}, &GetTractionSetting},
    {"traction-set", {kToModule, kTraction, kConfigure, Any(), Any()}, &SetTractionSetting},
    {"points-set-default-time", {kToModule, kPoints, WithPermanent(32), Any()}, &SetDefaultTime},
    {"points-set-device-time",
     {kToModule, kPoints, WithPermanent(32), Any(), Any()},
     &SetDeviceTime},
    {"points-set-device-power",
     {kToModule, kPoints, WithPermanent(40), Any(), Any()},
     &SetDevicePower},
    {"points-erase", {kToModule, kPoints, Is(64)}, &ErasePointSettings},
    {"points-get-default-time", {kToModule, kPoints, WithPermanent(34)}, &GetDefaultTime},
    {"points-get-device", {kToModule, kPoints, WithPermanent(34), Any()}, &GetDevice},
};

}  // namespace

std::span<const CommandRow> ModuleCommands() {
    return kModuleCommands;
}

}  // namespace zelvar::sim
