// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/text/words.h"

#include <algorithm>
#include <numeric>
#include <sstream>

namespace zelvar::sim {

namespace {

/// How many letters to insert, remove or replace, or neighbours to swap, to get from one word to
/// the other.
std::size_t Distance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> beforeLast(to.size() + 1);
    std::vector<std::size_t> last(to.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t row = 1; row <= from.size(); ++row) {
        std::vector<std::size_t> next(to.size() + 1, row);
        for (std::size_t column = 1; column <= to.size(); ++column) {
            const bool same = from[row - 1] == to[column - 1];
            next[column] = std::min(
                {last[column] + 1, next[column - 1] + 1, last[column - 1] + (same ? 0 : 1)});
            if (row > 1 && column > 1 && from[row - 1] == to[column - 2] &&
                from[row - 2] == to[column - 1]) {
                next[column] = std::min(next[column], beforeLast[column - 2] + 1);
            }
        }
        beforeLast.swap(last);
        last.swap(next);
    }
    return last.back();
}

}  // namespace

std::string WordFor(std::span<const Word> words, int value) {
    const auto word = std::find_if(words.begin(), words.end(),
                                   [value](const Word& each) { return each.value == value; });
    return word == words.end() ? std::to_string(value) : std::string(word->text);
}

std::vector<std::string> SplitWords(std::string_view line) {
    std::istringstream in{std::string(line)};
    std::vector<std::string> words;
    for (std::string word; in >> word;) {
        words.push_back(word);
    }
    return words;
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string JoinedWith(std::span<const std::string> parts, std::string_view last) {
    std::string text;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        if (index > 0) {
            text += index + 1 == parts.size() ? ' ' + std::string(last) + ' ' : ", ";
        }
        text += parts[index];
    }
    return text;
}

std::optional<std::string> NearestWord(std::string_view word,
                                       std::span<const std::string> candidates) {
    constexpr std::size_t kLettersPerMistake = 3;  // more would match words of another meaning
    std::optional<std::string> nearest;
    std::size_t limit = word.size() / kLettersPerMistake + 1;
    for (const std::string& candidate : candidates) {
        const std::size_t distance = Distance(word, candidate);
        if (distance < limit || (distance == limit && !nearest && distance < candidate.size())) {
            nearest = candidate;
            limit = distance;
        }
    }
    return nearest;
}

std::string Wrapped(std::string_view text, std::size_t columns, std::size_t indent) {
    std::string wrapped;
    std::size_t column = indent;
    for (const std::string& word : SplitWords(text)) {
        if (wrapped.empty()) {
            column += word.size();
        } else if (column + 1 + word.size() <= columns) {
            wrapped += ' ';
            column += 1 + word.size();
        } else {
            wrapped.append("\n").append(indent, ' ');
            column = indent + word.size();
        }
        wrapped += word;
    }
    return wrapped;
}

}  // namespace zelvar::sim
