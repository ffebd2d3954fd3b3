// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/module_command.h"

#include "protocol/addresses.h"

namespace zelvar {

namespace {

std::uint8_t Byte(int value) {
    return static_cast<std::uint8_t>(value);
}

Command Addressed(const ModuleCommand& command, int address, int code) {
    constexpr int kLeadingBytes = 2;
    return {Byte(command.length + kLeadingBytes),
            {0, Byte(address), Byte(code), command.arg1, command.arg2}};
}

}  // namespace

Command CommandForVD(const ModuleCommand& command, int module) {
    return Addressed(command, VDAddress(module),
                     command.code + (IsSecondary(module) ? kSecondaryBit : 0));
}

Command CommandForJs(const ModuleCommand& command, int module) {
    return Addressed(command, JsAddress(module), command.code);
}

Command CommandForUnit(const ModuleCommand& command) {
    constexpr std::uint8_t kUnitFamily = 1;
    return {command.length, {kUnitFamily, command.code, command.arg1, command.arg2}};
}

}  // namespace zelvar
