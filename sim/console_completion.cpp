// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "console_completion.h"

#include <algorithm>

#include "console.h"

namespace zelvar::sim {

namespace {

using Words = std::vector<std::string>;

Words CommandNames(const UnitState&) {
    Words names;
    for (const auto table : ConsoleTables()) {
        for (const ConsoleCommand& command : table) {
            names.emplace_back(command.name);
        }
    }
    return names;
}

Words PresentModules(const UnitState& state) {
    Words addresses;
    for (int address = 0; address < kModuleAddresses; ++address) {
        if (state.layout.At(address).Present()) {
            addresses.push_back(std::to_string(address));
        }
    }
    return addresses;
}

Words PresentTractionUnits(const UnitState& state) {
    Words lines;
    for (int line = 0; line < kTractionLines; ++line) {
        if (state.layout.At(LineAddress(line)).Present()) {
            lines.push_back(std::to_string(line));
        }
    }
    return lines;
}

Words TrainNames(const UnitState& state) {
    Words names;
    for (const Train& train : state.layout.track.trains) {
        names.push_back(train.name);
    }
    return names;
}

Words SectionNames(const UnitState& state) {
    Words names;
    for (const TrackSection& section : state.layout.track.sections) {
        names.push_back(section.name);
    }
    return names;
}

/// A placeholder of the usages whose values have names.
struct Placeholder {
    std::string_view word;
    Words (*values)(const UnitState&);
};

constexpr Placeholder kPlaceholders[] = {
    {"COMMAND", &CommandNames}, {"ADDRESS", &PresentModules}, {"M", &PresentTractionUnits},
    {"TRAIN", &TrainNames},     {"SECTION", &SectionNames},
};

bool IsPlaceholder(std::string_view word) {
    return word.find_first_of("abcdefghijklmnopqrstuvwxyz0123456789") == std::string_view::npos;
}

Words ValuesOf(const UnitState& state, std::string_view word) {
    for (const Placeholder& placeholder : kPlaceholders) {
        if (placeholder.word == word) {
            return placeholder.values(state);
        }
    }
    return IsPlaceholder(word) ? Words{} : Words{std::string(word)};
}

/// What argument number `index` can be, by the usage: "ADDRESS on|off".
Words ArgumentWords(const UnitState& state, std::string_view usage, std::size_t index) {
    const std::vector<std::string> forms = SplitWords(usage);
    if (index >= forms.size()) {
        return {};
    }
    std::string_view form = forms[index];
    form.remove_prefix(form.starts_with('[') ? 1 : 0);
    form.remove_suffix(form.ends_with(']') ? 1 : 0);
    Words words;
    while (!form.empty()) {
        const std::size_t end = std::min(form.find('|'), form.size());
        const Words values = ValuesOf(state, form.substr(0, end));
        words.insert(words.end(), values.begin(), values.end());
        form.remove_prefix(std::min(end + 1, form.size()));
    }
    return words;
}

}  // namespace

std::string_view LastWord(std::string_view line) {
    return line.substr(line.find_last_of(" \t") + 1);
}

std::vector<std::string> CompleteLine(const UnitState& state, std::string_view line) {
    const std::string_view last = LastWord(line);
    const Words before = SplitWords(line.substr(0, line.size() - last.size()));
    Words words;
    if (before.empty()) {
        words = CommandNames(state);
    } else if (const ConsoleCommand* command = FindConsoleCommand(before.front())) {
        words = ArgumentWords(state, command->usage, before.size() - 1);
    }
    std::erase_if(words, [&](const std::string& word) { return !word.starts_with(last); });
    if (before.empty()) {
        std::sort(words.begin(), words.end());
    }
    return words;
}

std::string CommonBeginning(const std::vector<std::string>& words) {
    if (words.empty()) {
        return {};
    }
    std::string common = words.front();
    for (const std::string& word : words) {
        const auto end = std::mismatch(common.begin(), common.end(), word.begin(), word.end());
        common.erase(end.first, common.end());
    }
    return common;
}

}  // namespace zelvar::sim
