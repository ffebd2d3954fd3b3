// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "sim/console/console.h"
#include "sim/console/state_dump.h"
#include "sim/console/state_table.h"

namespace zelvar::sim {

namespace {

constexpr std::size_t kColumns = 80;

constexpr Word kTraceModes[] = {{"on", static_cast<int>(ConsoleAction::kTraceOn)},
                                {"all", static_cast<int>(ConsoleAction::kTraceAll)},
                                {"off", static_cast<int>(ConsoleAction::kTraceOff)}};

std::vector<std::string> CommandNames(const UnitState&) {
    return ConsoleCommandNames();
}

ConsoleResult Trace(ConsoleContext&, const Values& values) {
    return {"ok", static_cast<ConsoleAction>(values[0])};
}

TableSection LineTable(const ConsoleContext& context, std::size_t faults) {
    std::string answers = "every command";
    if (context.faults.silent()) {
        answers = "nothing";
    } else if (faults > 0) {
        answers += ", with faults";
    }
    return {
        "Line",
        {},
        {{"rate", context.lineBaud > 0 ? std::to_string(context.lineBaud) + " baud" : "no line"},
         {"answers", answers}}};
}

TableSection ArmedFaultsTable(const ConsoleContext& context) {
    TableSection table{"Armed faults (\"clear-faults\" ends them)", {}, {}};
    for (const ArmedFault& fault : context.faults.Armed()) {
        table.rows.push_back({std::string(fault.command), fault.effect});
    }
    if (const int deferred = context.unit.deferredReplies(); deferred > 0) {
        table.rows.push_back({"defer", deferred == 1 ? "next reply with content"
                                                     : "next " + std::to_string(deferred) +
                                                           " replies with content"});
    }
    return table;
}

ConsoleResult State(ConsoleContext& context, const Values&) {
    std::vector<TableSection> sections = StateTables(context.unit.state());
    const TableSection faults = ArmedFaultsTable(context);
    sections.push_back(LineTable(context, faults.rows.size()));
    sections.push_back(faults);
    return {RenderSections(sections) + "ok", ConsoleAction::kNone};
}

ConsoleResult Dump(ConsoleContext& context, const Values&) {
    return {StateDump(context.unit.state()) + "silent=" + (context.faults.silent() ? "1" : "0") +
                "\nline-baud=" + std::to_string(context.lineBaud) + "\nok",
            ConsoleAction::kNone};
}

ConsoleResult HangUp(ConsoleContext&, const Values&) {
    return {"ok", ConsoleAction::kHangUp};
}

ConsoleResult Reconnect(ConsoleContext&, const Values&) {
    return {"ok", ConsoleAction::kReconnect};
}

ConsoleResult Quit(ConsoleContext&, const Values&) {
    return {"ok", ConsoleAction::kQuit};
}

/// The forms of one command with all there is to say about them.
std::string HelpFor(const std::string& name) {
    constexpr std::size_t kIndent = 2;
    const std::string indent(kIndent, ' ');
    std::string text;
    for (const ConsoleCommand* form : ConsoleFormsOf(name)) {
        text.append(CommandForm(*form)).append("\n").append(indent);
        text.append(Wrapped(CommandHelp(*form), kColumns, kIndent)).append("\n").append(indent);
        text.append("Example: ").append(form->example).append("\n");
    }
    return text;
}

std::string HelpForAll() {
    constexpr std::size_t kIndent = 2;
    constexpr std::size_t kGap = 2;
    std::size_t column = 0;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        for (const ConsoleCommand& command : group.commands) {
            column = std::max(column, kIndent + CommandForm(command).size() + kGap);
        }
    }
    std::string text;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        text.append(group.title).append("\n");
        for (const ConsoleCommand& command : group.commands) {
            std::string form(kIndent, ' ');
            form += CommandForm(command);
            form.resize(column, ' ');
            text.append(form).append(Wrapped(command.help, kColumns, column)).append("\n");
        }
        text.append("\n");
    }
    return text + "\"help COMMAND\" shows the ranges and an example; Tab completes words.\n";
}

ConsoleResult Help(ConsoleContext&, const Values& values) {
    return {(!values.empty() ? HelpFor(ConsoleCommandNames()[values[0]]) : HelpForAll()) + "ok",
            ConsoleAction::kNone};
}

constexpr ConsoleCommand kCommands[] = {
    {"hang-up",
     {},
     &HangUp,
     "Closes the pseudo-terminal: for the other end the device vanishes.",
     "hang-up"},
    {"reconnect", {}, &Reconnect, "Makes a new pseudo-terminal and its link.", "reconnect"},
    {"trace",
     {Choice(kTraceModes)},
     &Trace,
     "Shows every frame with its time, bytes and meaning; \"on\" leaves out empty polls.",
     "trace on"},
    {"state", {}, &State, "Shows the state of the unit and of the line as tables.", "state"},
    {"dump", {}, &Dump, "Lists the state for programs, one name=value per line.", "dump"},
    {"help",
     {Optional(Name("COMMAND", &CommandNames))},
     &Help,
     "Lists the commands, or explains one. \"?\" does too.",
     "help speed"},
    {"quit", {}, &Quit, "Ends the program. \"exit\" does too.", "quit"},
};

}  // namespace

ConsoleGroup ProgramConsoleCommands() {
    return {"The program", kCommands};
}

}  // namespace zelvar::sim
