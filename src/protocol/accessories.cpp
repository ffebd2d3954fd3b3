// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/accessories.h"

#include "protocol/addresses.h"

namespace zelvar {

namespace {

constexpr int kPointCode = 16;
constexpr int kPointThrown = 4;

constexpr int kModulePointCode = 17;
constexpr int kModulePointThrown = 8;

constexpr int kSignalAspectCode = 68;

constexpr int kOutputCode = 24;

}  // namespace

Command SetPoint(int device, bool thrown) {
    return CommandOf({kPointCode + (thrown ? kPointThrown : 0) + High7(device), Low7(device)});
}

Command SetModulePoint(int module, int device, bool thrown) {
    return CommandOf(
        {0, JsAddress(module), kModulePointCode + (thrown ? kModulePointThrown : 0), device});
}

Command SetSignalAspect(int module, int pin, int aspect) {
    return CommandOf({0, YRAddress(module), kSignalAspectCode, 0, 1, pin, aspect});
}

Command SetOutput(int output, int instruction, int parameter) {
    return CommandOf({kOutputCode + High7(output), Low7(output), instruction, parameter});
}

std::vector<CommandRow> AccessoryCommands() {
    using Arguments = std::span<const int>;
    return {
        {"point",
         {{"device", 0, 511}, {"thrown", 0, 1}},
         [](Arguments a) { return SetPoint(a[0], a[1] != 0); }},
        {"point-of-module",
         {{"module", 0, kJsModules - 1}, {"device", 0, 63}, {"thrown", 0, 1}},
         [](Arguments a) { return SetModulePoint(a[0], a[1], a[2] != 0); }},
        {"signal-aspect",
         {{"module", 0, kYRModules - 1}, {"pin", 0, 127}, {"aspect", 0, 11}},
         [](Arguments a) { return SetSignalAspect(a[0], a[1], a[2]); }},
        {"output",
         {{"output", 0, 511}, {"instruction", 0, 63}, {"parameter", 0, 127}},
         [](Arguments a) { return SetOutput(a[0], a[1], a[2]); }},
    };
}

}  // namespace zelvar
