// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sim/console/argument.h"
#include "sim/line/faults.h"
#include "sim/unit/central_unit.h"

namespace zelvar::sim {

/// What the program around the console has to do after a command.
enum class ConsoleAction { kNone, kTraceOn, kTraceAll, kTraceOff, kHangUp, kReconnect, kQuit };

/// The answer, without the line feed at its end, and what is left to do.
struct ConsoleResult {
    std::string text = "ok";
    ConsoleAction action = ConsoleAction::kNone;
};

/// What console commands work on.
struct ConsoleContext {
    CentralUnit& unit;
    Faults& faults;
    Time now{0};
    /// The rate that the other end of the line has set; 0 while there is no line.
    int lineBaud = 0;
};

/// One console command, or one form of it: rows with the same name are forms with different
/// arguments. Adding a command is adding a row to a group.
struct ConsoleCommand {
    std::string_view name;
    ArgumentList arguments;
    ConsoleResult (*run)(ConsoleContext&, const Values&);
    std::string_view help;     // a sentence
    std::string_view example;  // a line that works with the club layout
};

/// Commands that `help` lists together.
struct ConsoleGroup {
    std::string_view title;
    std::span<const ConsoleCommand> commands;
};

/// Reports and states: `overcurrent`, `speed`, `feedback`, `fault` and the like.
ConsoleGroup LayoutConsoleCommands();
/// The trains, their points and their time: `place` and the like.
ConsoleGroup RailwayConsoleCommands();
/// Faults of the line: `silent`, `late`, `stray` and the like.
ConsoleGroup FaultConsoleCommands();
/// The program itself: `trace`, `state`, `hang-up`, `quit` and the like.
ConsoleGroup ProgramConsoleCommands();

/// Every group, in the order of `help`.
std::span<const ConsoleGroup> ConsoleGroups();
/// Every command once, in the order of `help`.
std::vector<std::string> ConsoleCommandNames();
/// The forms of a command, also by its other name (`?`, `exit`); none if it is unknown.
std::vector<const ConsoleCommand*> ConsoleFormsOf(std::string_view name);

/// Carries out one line of input. The answer is one line that starts with "ok" or "error"; `state`,
/// `dump` and `help` put more lines before it. An empty line has an empty answer.
ConsoleResult RunConsoleLine(ConsoleContext& context, std::string_view line);

/// "speed B S forward|reverse"
std::string CommandForm(const ConsoleCommand& command);
/// What it does, and the ranges of its arguments.
std::string CommandHelp(const ConsoleCommand& command);

ConsoleResult Error(std::string_view reason);

}  // namespace zelvar::sim
