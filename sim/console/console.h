// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sim/line/faults.h"
#include "sim/text/number.h"
#include "sim/text/words.h"
#include "sim/unit/central_unit.h"

namespace zelvar::sim {

/// What the program around the console has to do after a command.
enum class ConsoleAction { kNone, kTraceOn, kTraceOff, kHangUp, kReconnect, kQuit };

/// The answer, without the line feed at its end, and what is left to do.
struct ConsoleResult {
    std::string text;
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

using ConsoleArguments = std::span<const std::string>;

/// One console command; `usage` names its arguments: words in small letters are typed as they
/// stand, `a|b` is a choice, `[x]` may be missing, and placeholders are in capitals. Adding a
/// command is adding a row to a table.
struct ConsoleCommand {
    std::string_view name;
    std::string_view usage;
    std::size_t leastArguments;
    std::size_t mostArguments;
    ConsoleResult (*run)(ConsoleContext&, ConsoleArguments);
    std::string_view help;     // one sentence
    std::string_view example;  // a line that is right
};

inline constexpr std::size_t kAnyNumberOfArguments = std::numeric_limits<std::size_t>::max();

/// Reports and states: `overcurrent`, `speed`, `feedback`, `fault` and the like.
std::span<const ConsoleCommand> LayoutConsoleCommands();
/// The trains, their points and their time: `place` and the like.
std::span<const ConsoleCommand> RailwayConsoleCommands();
/// Misbehaviour: `silent`, `late`, `stray` and the like.
std::span<const ConsoleCommand> FaultConsoleCommands();
/// The program itself: `trace`, `state`, `hang-up`, `quit` and the like.
std::span<const ConsoleCommand> ProgramConsoleCommands();

/// Every command of every table, in the order of `help`.
std::span<const std::span<const ConsoleCommand>> ConsoleTables();
/// Null when there is no such command.
const ConsoleCommand* FindConsoleCommand(std::string_view name);

/// Carries out one line of input. The answer is one line starting with "ok" or "error"; `state`,
/// `dump` and `help` put more lines before it. A blank line has an empty answer.
ConsoleResult RunConsoleLine(ConsoleContext& context, std::string_view line);

/// "on" and "off".
std::optional<bool> ParseSwitch(std::string_view text);

/// A command with its arguments, as `help` lists it.
std::string CommandForm(const ConsoleCommand& command);

ConsoleResult Ok(std::string_view details = {});
ConsoleResult Error(std::string_view reason);
/// The error for a number that is none or out of its range.
ConsoleResult RangeError(std::string_view what, int least, int most);

}  // namespace zelvar::sim
