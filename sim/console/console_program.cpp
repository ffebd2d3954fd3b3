// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "sim/console/console.h"
#include "sim/console/state_listing.h"
#include "sim/console/state_table.h"

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

std::string Rate(int baud) {
    return baud > 0 ? std::to_string(baud) + " baud" : "no line";
}

ConsoleResult State(ConsoleContext& context, ConsoleArguments) {
    std::vector<TableSection> sections = StateSections(context.unit.state());
    sections.push_back({"Line",
                        {},
                        {{"rate", Rate(context.lineBaud)},
                         {"answers", context.faults.silent() ? "nothing" : "every command"}}});
    return {RenderSections(sections) + "ok", ConsoleAction::kNone};
}

ConsoleResult Dump(ConsoleContext& context, ConsoleArguments) {
    return {StateListing(context.unit.state()) + "silent=" + (context.faults.silent() ? "1" : "0") +
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

ConsoleResult HelpFor(std::string_view name) {
    const ConsoleCommand* command = FindConsoleCommand(name);
    if (command == nullptr) {
        return Error(std::string("unknown command ").append(name));
    }
    std::string text = CommandForm(*command);
    text.append("\n  ").append(command->help).append("\n  Example: ").append(command->example);
    return {text.append("\nok"), ConsoleAction::kNone};
}

ConsoleResult Help(ConsoleContext&, ConsoleArguments arguments) {
    if (!arguments.empty()) {
        return HelpFor(arguments[0]);
    }
    std::size_t width = 0;
    for (const auto table : ConsoleTables()) {
        for (const ConsoleCommand& command : table) {
            width = std::max(width, CommandForm(command).size());
        }
    }
    std::string text;
    for (const auto table : ConsoleTables()) {
        for (const ConsoleCommand& command : table) {
            std::string form = CommandForm(command);
            form.resize(width, ' ');
            text.append(form).append("  ").append(command.help).append("\n");
        }
    }
    return {text + "ok", ConsoleAction::kNone};
}

constexpr ConsoleCommand kCommands[] = {
    {"hang-up", "", 0, 0, &HangUp, "Closes the pseudo-terminal: the other end sees its device go.",
     "hang-up"},
    {"reconnect", "", 0, 0, &Reconnect, "Makes a new pseudo-terminal and its link.", "reconnect"},
    {"trace", "on|off", 1, 1, &Trace, "Shows every frame with its time, its bytes and its meaning.",
     "trace on"},
    {"state", "", 0, 0, &State, "Shows what the unit knows and did, as tables.", "state"},
    {"dump", "", 0, 0, &Dump, "Lists the same for programs, one name=value a line.", "dump"},
    {"help", "[COMMAND]", 0, 1, &Help, "Lists the commands, or explains one.", "help speed"},
    {"quit", "", 0, 0, &Quit, "Ends the program.", "quit"},
};

}  // namespace

std::span<const ConsoleCommand> ProgramConsoleCommands() {
    return kCommands;
}

}  // namespace zelvar::sim
