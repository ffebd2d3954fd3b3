// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "console.h"

namespace zelvar::sim {

namespace {

ConsoleResult WithAction(ConsoleAction action) {
    return {"ok", action};
}

ConsoleResult Trace(ConsoleContext&, ConsoleArguments arguments) {
    const std::optional<bool> on = ParseSwitch(arguments[0]);
    if (!on) {
        return Error("on or off expected");
    }
    return WithAction(*on ? ConsoleAction::kTraceOn : ConsoleAction::kTraceOff);
}

ConsoleResult State(ConsoleContext& context, ConsoleArguments) {
    return {context.unit.Describe(context.now) + "silent=" + (context.faults.silent() ? "1" : "0") +
                "\nline-baud=" + std::to_string(context.lineBaud) + "\nok",
            ConsoleAction::kNone};
}

ConsoleResult HangUp(ConsoleContext&, ConsoleArguments) {
    return WithAction(ConsoleAction::kHangUp);
}

ConsoleResult Reconnect(ConsoleContext&, ConsoleArguments) {
    return WithAction(ConsoleAction::kReconnect);
}

ConsoleResult Quit(ConsoleContext&, ConsoleArguments) {
    return WithAction(ConsoleAction::kQuit);
}

ConsoleResult Help(ConsoleContext&, ConsoleArguments) {
    std::string text;
    for (const auto table : {LayoutConsoleCommands(), RailwayConsoleCommands(),
                             FaultConsoleCommands(), ProgramConsoleCommands()}) {
        for (const ConsoleCommand& command : table) {
            text.append(CommandForm(command)).append("\n");
        }
    }
    return {text + "ok", ConsoleAction::kNone};
}

constexpr ConsoleCommand kCommands[] = {
    {"hang-up", "", 0, 0, &HangUp},    {"reconnect", "", 0, 0, &Reconnect},
    {"trace", "on|off", 1, 1, &Trace}, {"state", "", 0, 0, &State},
    {"help", "", 0, 0, &Help},         {"quit", "", 0, 0, &Quit},
};

}  // namespace

std::span<const ConsoleCommand> ProgramConsoleCommands() {
    return kCommands;
}

}  // namespace zelvar::sim
