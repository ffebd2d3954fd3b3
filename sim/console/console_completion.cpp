// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console_completion.h"

#include <algorithm>
#include <optional>

#include "sim/console/console.h"

namespace zelvar::sim {

namespace {

using Words = std::vector<std::string>;

/// The length of the complete argument at the front of the text; none while it is being typed.
std::optional<std::size_t> CompleteArgument(const Words& words, std::string_view text) {
    const std::size_t space = text.find(' ');
    const auto begun = [&](const std::string& word) { return word.starts_with(text); };
    if (space == std::string_view::npos || std::any_of(words.begin(), words.end(), begun)) {
        return std::nullopt;
    }
    std::size_t length = space;
    for (const std::string& word : words) {
        if (text.starts_with(word + " ")) {
            length = std::max(length, word.size());
        }
    }
    return length;
}

/// The argument of `form` that the text ends in, and as much of the text as belongs to it.
Completion CompleteForm(const UnitState& state, const ConsoleCommand& form, std::string_view text) {
    for (const Argument& argument : form.arguments) {
        const Words words = OfferedWords(state, argument);
        const std::optional<std::size_t> length = CompleteArgument(words, text);
        if (!length) {
            return {std::string(text), words};
        }
        text.remove_prefix(*length + 1);
    }
    return {std::string(text), {}};
}

/// How many characters a word takes on the screen.
std::size_t WidthOf(std::string_view word) {
    constexpr unsigned kPartMask = 0xC0;
    constexpr unsigned kLaterPart = 0x80;  // of a character of several bytes
    std::size_t width = 0;
    for (const char byte : word) {
        width += (static_cast<unsigned char>(byte) & kPartMask) != kLaterPart ? 1 : 0;
    }
    return width;
}

/// One space between two words, and after the last one if there is any.
std::string Spaced(std::string_view line) {
    std::string spaced;
    for (const std::string& word : SplitWords(line)) {
        spaced.append(spaced.empty() ? "" : " ").append(word);
    }
    const bool isAfter = !spaced.empty() && (line.ends_with(' ') || line.ends_with('\t'));
    return isAfter ? spaced + " " : spaced;
}

}  // namespace

Completion CompleteLine(const UnitState& state, std::string_view line) {
    const std::string spaced = Spaced(line);
    const std::size_t space = spaced.find(' ');
    Completion completion{spaced, ConsoleCommandNames()};
    if (space != std::string::npos) {
        const std::string_view text = std::string_view(spaced).substr(space + 1);
        completion = {std::string(text), {}};
        for (const ConsoleCommand* form : ConsoleFormsOf(spaced.substr(0, space))) {
            const auto [begun, words] = CompleteForm(state, *form, text);
            completion.begun = begun;
            for (const std::string& word : words) {
                Words& known = completion.words;
                if (std::find(known.begin(), known.end(), word) == known.end()) {
                    known.push_back(word);
                }
            }
        }
    }
    std::erase_if(completion.words,
                  [&](const std::string& word) { return !word.starts_with(completion.begun); });
    return completion;
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
    // The last column needs no gap after it.
    const std::size_t fitting = width == 0 ? 1 : std::max<std::size_t>(1, (columns + kGap) / width);
    const std::size_t rows = (words.size() + fitting - 1) / fitting;
    std::string text;
    for (std::size_t row = 0; row < rows; ++row) {
        std::size_t missing = 0;  // spaces up to the next column
        for (std::size_t index = row; index < words.size(); index += rows) {
            text.append(missing, ' ').append(words[index]);
            missing = width - WidthOf(words[index]);
        }
        text += '\n';
    }
    return text;
}

}  // namespace zelvar::sim
