// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zelvar::sim {

/// A word and the number it stands for.
struct Word {
    std::string_view text;
    int value;
};

/// The word for a number; the number itself if there is none.
inline std::string WordFor(std::span<const Word> words, int value) {
    for (const Word& word : words) {
        if (word.value == value) {
            return std::string(word.text);
        }
    }
    return std::to_string(value);
}

}  // namespace zelvar::sim
