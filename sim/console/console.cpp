// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console.h"

#include <variant>

namespace zelvar::sim {

namespace {

struct Alias {
    std::string_view alias;
    std::string_view name;
};

constexpr Alias kAliases[] = {{"?", "help"}, {"exit", "quit"}};

ConsoleResult UnknownCommand(const std::string& name) {
    const auto nearest = NearestWord(name, ConsoleCommandNames());
    return Error("unknown command " + name +
                 (nearest ? "; did you mean " + *nearest + "?" : "; \"help\" lists them"));
}

/// Of the forms that do not fit, those that come nearest say what was expected.
class NearestMisfit {
  public:
    void Add(const ConsoleCommand& form, const Misfit& misfit) {
        if (misfit.place > misfit_.place) {
            misfit_ = misfit;
            usage_ = CommandForm(form);
        } else if (misfit.place == misfit_.place) {
            misfit_.expected.insert(misfit_.expected.end(), misfit.expected.begin(),
                                    misfit.expected.end());
            misfit_.found = misfit.found;
            misfit_.message = misfit.message;
            usage_.append(usage_.empty() ? "" : " or ").append(CommandForm(form));
        }
    }
    ConsoleResult Answer() const {
        if (!misfit_.message.empty()) {
            return Error(misfit_.message);
        }
        if (!misfit_.expected.empty()) {
            return Error("expected " + JoinedWith(misfit_.expected, "or") + ", found " +
                         misfit_.found);
        }
        return Error("usage: " + usage_);
    }

  private:
    Misfit misfit_;
    std::string usage_;
};

}  // namespace

ConsoleResult Error(std::string_view reason) {
    return {"error " + std::string(reason), ConsoleAction::kNone};
}

std::string CommandForm(const ConsoleCommand& command) {
    const std::string usage = Usage(command.arguments);
    return std::string(command.name) + (usage.empty() ? "" : " " + usage);
}

std::string CommandHelp(const ConsoleCommand& command) {
    const std::string ranges = Ranges(command.arguments);
    return std::string(command.help) + (ranges.empty() ? "" : " " + ranges + ".");
}

std::span<const ConsoleGroup> ConsoleGroups() {
    static const ConsoleGroup kGroups[] = {LayoutConsoleCommands(), RailwayConsoleCommands(),
                                           FaultConsoleCommands(), ProgramConsoleCommands()};
    return kGroups;
}

std::vector<std::string> ConsoleCommandNames() {
    std::vector<std::string> names;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        for (const ConsoleCommand& command : group.commands) {
            // The forms of a command are next to each other.
            if (names.empty() || names.back() != command.name) {
                names.emplace_back(command.name);
            }
        }
    }
    return names;
}

std::vector<const ConsoleCommand*> ConsoleFormsOf(std::string_view name) {
    for (const Alias& alias : kAliases) {
        name = name == alias.alias ? alias.name : name;
    }
    std::vector<const ConsoleCommand*> forms;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        for (const ConsoleCommand& command : group.commands) {
            if (command.name == name) {
                forms.push_back(&command);
            }
        }
    }
    return forms;
}

ConsoleResult RunConsoleLine(ConsoleContext& context, std::string_view line) {
    const std::vector<std::string> words = SplitWords(line);
    if (words.empty()) {
        return {"", ConsoleAction::kNone};
    }
    const std::vector<const ConsoleCommand*> forms = ConsoleFormsOf(words.front());
    if (forms.empty()) {
        return UnknownCommand(words.front());
    }
    NearestMisfit nearest;
    for (const ConsoleCommand* form : forms) {
        const auto parsed = ParseArguments(context.unit.state(), form->arguments,
                                           std::span<const std::string>(words).subspan(1));
        if (const Values* values = std::get_if<Values>(&parsed)) {
            // A change takes effect now, not at the time of the last frame.
            context.unit.Advance(context.now);
            return form->run(context, *values);
        }
        nearest.Add(*form, std::get<Misfit>(parsed));
    }
    return nearest.Answer();
}

}  // namespace zelvar::sim
