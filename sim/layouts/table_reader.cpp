// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/table_reader.h"

#include <algorithm>
#include <cmath>

#include "sim/text/number.h"
#include "sim/text/words.h"
#include "sim/unit/layout.h"

namespace zelvar::sim {

namespace {

bool IsPrintable(const std::string& text) {
    constexpr unsigned char kFirstPrintable = 0x20;
    constexpr unsigned char kDelete = 0x7F;
    return !text.empty() && std::none_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < kFirstPrintable || byte == kDelete;
    });
}

/// D.DD, or D.DD and a letter A..G behind a blank, as a decimal number.
std::optional<int> ParseVersion(std::string_view text) {
    constexpr std::size_t kPlain = 4;
    constexpr std::size_t kWithLetter = 6;
    if (text.size() != kPlain && text.size() != kWithLetter) {
        return std::nullopt;
    }
    int version = 0;
    for (std::size_t index = 0; index < kPlain; ++index) {
        if (index == 1) {
            if (text[index] != '.') {
                return std::nullopt;
            }
            continue;
        }
        if (text[index] < '0' || text[index] > '9') {
            return std::nullopt;
        }
        version = version * 10 + (text[index] - '0');
    }
    version *= 10;
    if (text.size() == kPlain) {
        return version;
    }
    const char letter = text[kWithLetter - 1];
    if (text[kPlain] != ' ' || letter < 'A' || letter > 'G') {
        return std::nullopt;
    }
    return version + (letter - 'A' + 1);
}

}  // namespace

const TomlValue* TableReader::Find(std::string_view key) const {
    const auto entry = std::find_if(table_.begin(), table_.end(), [&](const TomlEntry& candidate) {
        return candidate.key == key;
    });
    return entry == table_.end() ? nullptr : &entry->value;
}

const TomlValue* TableReader::Take(std::string_view key, Need need) {
    known_.push_back(key);
    const TomlValue* found = Find(key);
    if (found == nullptr && need == Need::kRequired) {
        Problem(line_, std::string(key) + ": expected here, but missing");
    }
    return found;
}

void TableReader::Wrong(std::string_view key, const TomlValue& found, const std::string& expected) {
    Problem(found.line, std::string(key) + ": " + expected + " expected, found " + Shown(found));
}

int TableReader::LineOf(std::string_view key) const {
    const TomlValue* found = Find(key);
    return found == nullptr ? line_ : found->line;
}

std::optional<int> TableReader::Whole(std::string_view key, Limits limits, Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto* number = std::get_if<std::int64_t>(&found->value);
    if (number == nullptr || *number < limits.least || *number > limits.most) {
        Wrong(key, *found, "a whole number " + RangeText(limits.least, limits.most));
        return std::nullopt;
    }
    return static_cast<int>(*number);
}

std::optional<double> TableReader::Number(std::string_view key, Limits limits, Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    double number = std::nan("");  // outside all limits, as is a "nan" in the file
    if (const auto* whole = std::get_if<std::int64_t>(&found->value)) {
        number = static_cast<double>(*whole);
    } else if (const auto* fraction = std::get_if<double>(&found->value)) {
        number = *fraction;
    }
    if (!(number >= limits.least && number <= limits.most)) {
        Wrong(key, *found, "a number " + RangeText(limits.least, limits.most));
        return std::nullopt;
    }
    return number;
}

std::optional<int> TableReader::WordValue(std::string_view key, const TomlValue& found,
                                          std::span<const Word> words) {
    const auto* text = std::get_if<std::string>(&found.value);
    std::vector<std::string> choices;
    for (const Word& word : words) {
        if (text != nullptr && *text == word.text) {
            return word.value;
        }
        choices.push_back(Quoted(word.text));
    }
    Wrong(key, found, JoinedWith(choices, "or"));
    return std::nullopt;
}

std::optional<int> TableReader::OneOf(std::string_view key, std::span<const Word> words,
                                      Need need) {
    const TomlValue* found = Take(key, need);
    return found == nullptr ? std::nullopt : WordValue(key, *found, words);
}

std::optional<std::vector<int>> TableReader::ListOf(std::string_view key,
                                                    std::span<const Word> words, std::size_t count,
                                                    Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const TomlArray* list = found->AsArray();
    if (list == nullptr || list->size() != count) {
        Wrong(key, *found, "a list of " + std::to_string(count) + " words");
        return std::nullopt;
    }
    std::vector<int> values;
    for (const TomlValue& item : *list) {
        if (const std::optional<int> value = WordValue(key, item, words)) {
            values.push_back(*value);
        }
    }
    return values.size() == count ? std::optional(values) : std::nullopt;
}

std::optional<bool> TableReader::Truth(std::string_view key, Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const bool* truth = std::get_if<bool>(&found->value);
    if (truth == nullptr) {
        Wrong(key, *found, "true or false");
        return std::nullopt;
    }
    return *truth;
}

std::optional<std::string> TableReader::Text(std::string_view key, std::size_t longest, Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto* text = std::get_if<std::string>(&found->value);
    if (text == nullptr || text->size() > longest || !IsPrintable(*text)) {
        Wrong(key, *found, "a text of 1.." + std::to_string(longest) + " characters");
        return std::nullopt;
    }
    return *text;
}

std::optional<std::vector<LocatedText>> TableReader::Names(std::string_view key, std::size_t most,
                                                           Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const TomlArray single{*found};
    const TomlArray& list = found->AsArray() != nullptr ? *found->AsArray() : single;
    std::vector<LocatedText> names;
    for (const TomlValue& item : list) {
        const auto* text = std::get_if<std::string>(&item.value);
        if (text == nullptr) {
            Wrong(key, item, "a name or a list of names");
            return std::nullopt;
        }
        if (std::any_of(names.begin(), names.end(),
                        [&](const LocatedText& name) { return name.text == *text; })) {
            Problem(item.line, std::string(key) + ": different names expected, found " +
                                   Shown(item) + " twice");
            return std::nullopt;
        }
        names.push_back({*text, item.line});
    }
    if (names.size() > most) {
        Problem(found->line, std::string(key) + ": at most " + std::to_string(most) +
                                 " names expected, found " + std::to_string(names.size()));
        return std::nullopt;
    }
    return names;
}

std::optional<int> TableReader::Version(std::string_view key, bool mayBeNone, Need need) {
    const TomlValue* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto* text = std::get_if<std::string>(&found->value);
    if (text != nullptr && mayBeNone && *text == "none") {
        return 0;
    }
    const std::optional<int> version = text == nullptr ? std::nullopt : ParseVersion(*text);
    // The two bytes that carry a version have no room for every number.
    if (!version || !EncodeVersion(*version)) {
        const bool unquoted = std::holds_alternative<double>(found->value) ||
                              std::holds_alternative<std::int64_t>(found->value);
        Wrong(key, *found,
              std::string(R"(a version like "1.02" or "1.02 C")") +
                  (unquoted ? " in quotation marks" : "") +
                  R"(, up to "9.85 G", the digits behind the point at most 85,)" +
                  (mayBeNone ? R"( or "none")" : ""));
        return std::nullopt;
    }
    return version;
}

const TomlValue* TableReader::Table(std::string_view key, Need need) {
    const TomlValue* found = Take(key, Need::kOptional);
    if (found == nullptr && need == Need::kRequired) {
        // A table stands anywhere in the file, not "here".
        Problem(line_, "[" + std::string(key) + "]: expected, but missing");
    }
    if (found != nullptr && found->AsTable() == nullptr) {
        Wrong(key, *found, "a table, [" + std::string(key) + "] or { ... },");
        return nullptr;
    }
    return found;
}

std::vector<const TomlValue*> TableReader::Tables(std::string_view key) {
    const TomlValue* found = Take(key, Need::kOptional);
    std::vector<const TomlValue*> tables;
    if (found == nullptr) {
        return tables;
    }
    const std::string expected = "tables, each under its own [[" + std::string(key) + "]],";
    if (found->AsArray() == nullptr) {
        Wrong(key, *found, expected);
        return tables;
    }
    for (const TomlValue& item : *found->AsArray()) {
        if (item.AsTable() == nullptr) {
            Wrong(key, item, expected);
        } else {
            tables.push_back(&item);
        }
    }
    return tables;
}

void TableReader::RejectOtherKeys() {
    std::vector<std::string> names(known_.begin(), known_.end());
    for (const TomlEntry& entry : table_) {
        if (std::find(known_.begin(), known_.end(), entry.key) == known_.end()) {
            Problem(entry.line, "unknown key " + Quoted(entry.key) + ": " +
                                    JoinedWith(names, "or") + " expected");
        }
    }
}

}  // namespace zelvar::sim
