// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the probe and the tests write to each other: lines of words with tabs between them.
namespace zelvar::e2e {

inline std::string EscapeWord(std::string_view word) {
    std::string escaped;
    for (const char c : word) {
        switch (c) {
            case '\\':
                escaped += "\\\\";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\t':
                escaped += "\\t";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

inline std::string JoinWords(const std::vector<std::string>& words) {
    std::string line;
    for (std::size_t i = 0; i < words.size(); ++i) {
        line += (i == 0 ? "" : "\t") + EscapeWord(words[i]);
    }
    return line;
}

inline std::vector<std::string> SplitWords(std::string_view line) {
    std::vector<std::string> words(1);
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\t') {
            words.emplace_back();
        } else if (line[i] == '\\' && i + 1 < line.size()) {
            ++i;
            words.back() += line[i] == 'n' ? '\n' : line[i] == 't' ? '\t' : line[i];
        } else {
            words.back() += line[i];
        }
    }
    return words;
}

}  // namespace zelvar::e2e
