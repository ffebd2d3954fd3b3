// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console.h"

#include <charconv>
#include <sstream>

namespace zelvar::sim {

namespace {

constexpr int kDecimal = 10;
constexpr int kHexadecimal = 16;

}  // namespace

std::optional<bool> ParseSwitch(std::string_view text) {
    if (text == "on") {
        return true;
    }
    return text == "off" ? std::optional(false) : std::nullopt;
}

ConsoleResult Ok(std::string_view details) {
    std::string text("ok");
    if (!details.empty()) {
        text.append(" ").append(details);
    }
    return {text, ConsoleAction::kNone};
}

ConsoleResult Error(std::string_view reason) {
    return {std::string("error ").append(reason), ConsoleAction::kNone};
}

ConsoleResult RangeError(std::string_view what, int least, int most) {
    return Error(std::string(what) + " must be " + std::to_string(least) + ".." +
                 std::to_string(most));
}

std::string CommandForm(const ConsoleCommand& command) {
    std::string form(command.name);
    if (!command.usage.empty()) {
        form.append(" ").append(command.usage);
    }
    return form;
}

std::span<const std::span<const ConsoleCommand>> ConsoleTables() {
    static const std::span<const ConsoleCommand> kTables[] = {
        LayoutConsoleCommands(), RailwayConsoleCommands(), FaultConsoleCommands(),
        ProgramConsoleCommands()};
    return kTables;
}

const ConsoleCommand* FindConsoleCommand(std::string_view name) {
    for (const std::span<const ConsoleCommand> table : ConsoleTables()) {
        for (const ConsoleCommand& command : table) {
            if (command.name == name) {
                return &command;
            }
        }
    }
    return nullptr;
}

ConsoleResult RunConsoleLine(ConsoleContext& context, std::string_view line) {
    const std::vector<std::string> words = SplitWords(line);
    if (words.empty()) {
        return {};
    }
    const ConsoleCommand* command = FindConsoleCommand(words.front());
    if (command == nullptr) {
        return Error(std::string("unknown command ").append(words.front()));
    }
    const ConsoleArguments arguments = ConsoleArguments(words).subspan(1);
    if (arguments.size() < command->leastArguments || arguments.size() > command->mostArguments) {
        return Error(std::string("usage: ").append(CommandForm(*command)));
    }
    // What it changes holds from now on, not since somebody last looked.
    context.unit.Advance(context.now);
    return command->run(context, arguments);
}

}  // namespace zelvar::sim
