// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/names.h"
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

constexpr Field kTractionValue = Whole(4);
constexpr Field kDefaultTime = Whole(3);
constexpr Field kDeviceTime = Whole(4);
constexpr Field kDevicePower = Whole(4);

/// A module's answer travels over its channel until a later poll.
Payload FromModule(UnitState& state, int address, const Payload& answer) {
    if (state.muted.test(address)) {
        return {};
    }
    if (state.answerDelay == 0) {
        return answer;
    }
    state.reports.Push(answer, state.answerDelay);
    return {};
}

Payload GetTractionSetting(UnitState& state, const Payload& command) {
    const int line = kTractionLine.In(command);
    const ModuleSlot& slot = state.layout.At(LineAddress(line));
    const int parameter = kTractionParameter.In(command);
    const TractionSetting* setting = FindTractionSetting(parameter);
    if (!slot.Present() || setting == nullptr) {
        return {};
    }
    const bool permanent = kTractionPermanent.In(command) != 0;
    const bool isClock =
        parameter == kAddressParameter && !permanent && !setting->IsOf(TypeIn(slot.status));
    const int value =
        isClock ? slot.clock : state.memories.traction[line].Part(permanent)[parameter];
    const int code = command[2] - kTractionConfigureCode + kTractionAnswerCode;
    return FromModule(state, LineAddress(line), {kToModule, command[1], code, command[3], value});
}

Payload SetTractionSetting(UnitState& state, const Payload& command) {
    const int line = kTractionLine.In(command);
    const int parameter = kTractionParameter.In(command);
    if (state.layout.At(LineAddress(line)).Present() && FindTractionSetting(parameter) != nullptr) {
        const bool permanent = kTractionPermanent.In(command) != 0;
        state.memories.traction[line].Part(permanent)[parameter] =
            static_cast<std::uint8_t>(kTractionValue.In(command));
    }
    return {};
}

Payload EraseTractionSettings(UnitState& state, const Payload& command) {
    const int line = kTractionLine.In(command);
    if (state.layout.At(LineAddress(line)).Present()) {
        state.memories.traction[line].SetBoth(FactoryTractionSettings(line));
    }
    return {};
}

/// The memory of the point module that a command addresses; null if there is no such module.
Memory<PointSettings>* PointMemory(UnitState& state, const Payload& command) {
    const int address = kModuleAddress.In(command);
    const int position = PointPosition(address);
    const bool present = position >= 0 && state.layout.At(address).Present();
    return present ? &state.memories.points[position] : nullptr;
}

/// The part of that memory that the command's code names.
PointSettings* PointPart(UnitState& state, const Payload& command) {
    Memory<PointSettings>* memory = PointMemory(state, command);
    return memory == nullptr ? nullptr : &memory->Part(kPointPermanent.In(command) != 0);
}

PointDevice& Device(PointSettings& settings, const Payload& command) {
    return settings.devices[kPointDevice.In(command) % kPointDevices];
}

Payload SetDefaultTime(UnitState& state, const Payload& command) {
    if (PointSettings* settings = PointPart(state, command); settings != nullptr) {
        settings->defaultTime = static_cast<std::uint8_t>(kDefaultTime.In(command));
    }
    return {};
}

Payload SetDeviceTime(UnitState& state, const Payload& command) {
    if (PointSettings* settings = PointPart(state, command); settings != nullptr) {
        Device(*settings, command).time = static_cast<std::uint8_t>(kDeviceTime.In(command));
    }
    return {};
}

Payload SetDevicePower(UnitState& state, const Payload& command) {
    if (PointSettings* settings = PointPart(state, command); settings != nullptr) {
        Device(*settings, command).power = static_cast<std::uint8_t>(kDevicePower.In(command));
    }
    return {};
}

Payload ErasePointSettings(UnitState& state, const Payload& command) {
    if (Memory<PointSettings>* memory = PointMemory(state, command); memory != nullptr) {
        memory->SetBoth(FactoryPointSettings());
    }
    return {};
}

Payload GetDefaultTime(UnitState& state, const Payload& command) {
    const PointSettings* settings = PointPart(state, command);
    if (settings == nullptr) {
        return {};
    }
    Payload answer = command;
    answer.Append(settings->defaultTime);
    return FromModule(state, kModuleAddress.In(command), answer);
}

Payload GetDevice(UnitState& state, const Payload& command) {
    PointSettings* settings = PointPart(state, command);
    if (settings == nullptr) {
        return {};
    }
    const PointDevice& device = Device(*settings, command);
    Payload answer = command;
    answer.Append(device.time);
    answer.Append(device.power);
    return FromModule(state, kModuleAddress.In(command), answer);
}

/// Setting 15 of the active memory depends on the module's type.
std::string AskedSettingName(const Payload& command, const KnownTypes& types) {
    const int parameter = kTractionParameter.In(command);
    if (parameter != kAddressParameter || kTractionPermanent.In(command) != 0) {
        return SettingName(parameter);
    }
    const std::optional<int> type = types.Of(LineAddress(kTractionLine.In(command)));
    if (!type) {
        return "clock state (in a QLRX-s: module address)";
    }
    return FindTractionSetting(parameter)->IsOf(*type) ? SettingName(parameter) : "clock state";
}

std::string NewSettingValue(const Payload& command, const KnownTypes&) {
    return SettingValueName(kTractionParameter.In(command), kTractionValue.In(command));
}

constexpr ValuePattern kConfigure = IsBut(kSecondaryBit, kTractionConfigureCode);
constexpr ValuePattern kSetTime = IsBut(kPermanentBit, 32);
constexpr ValuePattern kSetPower = IsBut(kPermanentBit, 40);
constexpr ValuePattern kGetPoints = IsBut(kPermanentBit, kPointSettingsCode);

constexpr Parameter kTractionMemory = MemoryName(kTractionPermanent);
constexpr Parameter kOfTractionUnit{kTractionLine, &OfTractionUnit};
constexpr Parameter kPointMemory = MemoryName(kPointPermanent);
constexpr Parameter kOfPointModule{kModuleAddress, &OfModule};

constexpr CommandRow kModuleCommands[] = {
    {"traction-erase",
     {Is(kToModule), kToTraction, kConfigure, Is(kPermanentBit)},
     {"erase all settings {}", {kOfTractionUnit}},
     &EraseTractionSettings},
    {"traction-get",
     {Is(kToModule), kToTraction, kConfigure, Any()},
     {"ask for the {} {} {}", {kTractionMemory, &AskedSettingName, kOfTractionUnit}},
     &GetTractionSetting,
     Asks::kYes},
    {"traction-set",
     {Is(kToModule), kToTraction, kConfigure, Any(), Any()},
     {"set the {} {} {} to {}",
      {kTractionMemory, {kTractionParameter, &SettingName}, kOfTractionUnit, &NewSettingValue}},
     &SetTractionSetting},
    {"points-set-default-time",
     {Is(kToModule), kToPoints, kSetTime, Any()},
     {"set the {} default time {} to {}",
      {kPointMemory, kOfPointModule, {kDefaultTime, &TimeName}}},
     &SetDefaultTime},
    {"points-set-device-time",
     {Is(kToModule), kToPoints, kSetTime, Any(), Any()},
     {"set the {} time of device {} {} to {}",
      {kPointMemory, kPointDevice, kOfPointModule, {kDeviceTime, &DeviceTimeName}}},
     &SetDeviceTime},
    {"points-set-device-power",
     {Is(kToModule), kToPoints, kSetPower, Any(), Any()},
     {"set the {} power of device {} {} to {}",
      {kPointMemory, kPointDevice, kOfPointModule, {kDevicePower, &PowerName}}},
     &SetDevicePower},
    {"points-erase",
     {Is(kToModule), kToPoints, Is(64)},
     {"erase all settings {}", {kOfPointModule}},
     &ErasePointSettings},
    {"points-get-default-time",
     {Is(kToModule), kToPoints, kGetPoints},
     {"ask for the {} default time {}", {kPointMemory, kOfPointModule}},
     &GetDefaultTime,
     Asks::kYes},
    {"points-get-device",
     {Is(kToModule), kToPoints, kGetPoints, Any()},
     {"ask for the {} time and power of device {} {}",
      {kPointMemory, kPointDevice, kOfPointModule}},
     &GetDevice,
     Asks::kYes},
};

}  // namespace

std::span<const CommandRow> ModuleCommands() {
    return kModuleCommands;
}

}  // namespace zelvar::sim
