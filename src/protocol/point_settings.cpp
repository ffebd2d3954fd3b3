// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/point_settings.h"

namespace zelvar {

namespace {

constexpr int kTimeCode = 32;
constexpr int kPowerCode = 40;

std::uint8_t Byte(int value) {
    return static_cast<std::uint8_t>(value);
}

std::uint8_t CodeOf(int code, bool permanent) {
    return Byte(code + (permanent ? kPermanentBit : 0));
}

}  // namespace

ModuleCommand JsDefaultTime(bool permanent, int time) {
    return {kTargetJs, 2, CodeOf(kTimeCode, permanent), Byte(time), 0};
}

ModuleCommand JsDeviceTime(bool permanent, int device, int time) {
    return {kTargetJs, 3, CodeOf(kTimeCode, permanent), Byte(device), Byte(time)};
}

ModuleCommand JsDevicePower(bool permanent, int device, int power) {
    return {kTargetJs, 3, CodeOf(kPowerCode, permanent), Byte(device), Byte(power)};
}

}  // namespace zelvar
