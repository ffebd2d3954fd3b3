// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelvar::sim {

/// A word and what it stands for.
struct Word {
    std::string_view text;
    int value;
};

/// The word for a number; the number itself if there is none.
std::string WordFor(std::span<const Word> words, int value);

/// The words of a line, without the white space between them.
std::vector<std::string> SplitWords(std::string_view line);

/// `"a"`, with quotation marks.
std::string Quoted(std::string_view text);

/// "a, b or c": the parts with commas between them and `last` before the last one.
std::string JoinedWith(std::span<const std::string> parts, std::string_view last);

/// The candidate that `word` most likely stands for, if one differs in few letters only.
std::optional<std::string> NearestWord(std::string_view word,
                                       std::span<const std::string> candidates);

/// The text in lines of at most `columns` characters. Every line but the first starts with `indent`
/// spaces; the first is to follow as many characters.
std::string Wrapped(std::string_view text, std::size_t columns, std::size_t indent);

}  // namespace zelvar::sim
