// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console_completion.h"

#include <algorithm>
#include <optional>

#include "sim/console/console.h"

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

/// What an argument can be, by its place in the usage: "on|off".
Words ArgumentWords(const UnitState& state, std::string_view form) {
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

bool IsNumber(std::string_view word) {
    return word.find_first_not_of("0123456789") == std::string_view::npos;
}

bool ComesBefore(const std::string& a, const std::string& b) {
    const bool numbers = IsNumber(a) && IsNumber(b);
    return numbers && a.size() != b.size() ? a.size() < b.size() : a < b;
}

/// The words that begin with `begun`.
Completion Fitting(Words words, std::string_view begun) {
    std::erase_if(words, [&](const std::string& word) { return !word.starts_with(begun); });
    std::sort(words.begin(), words.end(), &ComesBefore);
    return {std::string(begun), words};
}

/// The length of the finished argument at the front of the text; none when it is still begun.
std::optional<std::size_t> FinishedArgument(const Words& words, std::string_view text) {
    const std::size_t blank = text.find(' ');
    const auto begun = [&](const std::string& word) { return word.starts_with(text); };
    if (blank == std::string_view::npos || std::any_of(words.begin(), words.end(), begun)) {
        return std::nullopt;
    }
    std::size_t length = blank;
    for (const std::string& word : words) {
        if (text.starts_with(word + " ")) {
            length = std::max(length, word.size());
        }
    }
    return length;
}

/// In characters.
std::size_t WidthOf(std::string_view word) {
    constexpr unsigned kPartMask = 0xC0;
    constexpr unsigned kLaterPart = 0x80;  // of a character of several bytes
    return static_cast<std::size_t>(std::count_if(word.begin(), word.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & kPartMask) != kLaterPart;
    }));
}

/// One blank between two words, and behind the last one when there is one.
std::string Spaced(std::string_view line) {
    std::string spaced;
    for (const std::string& word : SplitWords(line)) {
        spaced.append(spaced.empty() ? "" : " ").append(word);
    }
    const bool behind = !spaced.empty() && (line.ends_with(' ') || line.ends_with('\t'));
    return behind ? spaced + " " : spaced;
}

}  // namespace

Completion CompleteLine(const UnitState& state, std::string_view line) {
    const std::string spaced = Spaced(line);
    std::string_view rest = spaced;
    const std::size_t blank = rest.find(' ');
    if (blank == std::string_view::npos) {
        return Fitting(CommandNames(state), rest);
    }
    const ConsoleCommand* command = FindConsoleCommand(rest.substr(0, blank));
    if (command == nullptr) {
        return {};
    }
    rest.remove_prefix(blank + 1);
    for (const std::string& form : SplitWords(command->usage)) {
        const Words words = ArgumentWords(state, form);
        const std::optional<std::size_t> finished = FinishedArgument(words, rest);
        if (!finished) {
            return Fitting(words, rest);
        }
        rest.remove_prefix(*finished + 1);
    }
    return {};
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

std::string InColumns(const std::vector<std::string>& words, std::size_t columns) {
    constexpr std::size_t kGap = 2;
    std::size_t width = 0;
    for (const std::string& word : words) {
        width = std::max(width, WidthOf(word) + kGap);
    }
    // The last column needs no gap behind it.
    const std::size_t most = width == 0 ? 1 : std::max<std::size_t>(1, (columns + kGap) / width);
    const std::size_t rows = (words.size() + most - 1) / most;
    std::string text;
    for (std::size_t row = 0; row < rows; ++row) {
        std::size_t missing = 0;  // blanks up to the next column
        for (std::size_t index = row; index < words.size(); index += rows) {
            text.append(missing, ' ').append(words[index]);
            missing = width - WidthOf(words[index]);
        }
        text += '\n';
    }
    return text;
}

}  // namespace zelvar::sim
