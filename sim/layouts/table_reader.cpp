// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/table_reader.h"

#include <algorithm>
#include <sstream>

#include "sim/text/number.h"
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

/// D.DD, or D.DD and a letter A..G after a space, as a decimal number.
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

/// A value as a message shows it, in one line: `7`, `"north"`, `a list of 3`.
std::string Shown(const toml::node& value) {
    constexpr std::size_t kLongestShown = 60;  // bytes
    if (value.is_table()) {
        return "a table";
    }
    if (const toml::array* list = value.as_array()) {
        return "a list of " + std::to_string(list->size());
    }
    std::ostringstream out;
    if (const auto* number = value.as_floating_point()) {
        out << number->get();  // toml++ would show 3.2 with all its digits
    } else {
        // Control characters come as escapes, so that a message does not drive the terminal.
        out << toml::toml_formatter(value, toml::format_flags::allow_unicode_strings);
    }
    std::string text = out.str();
    if (text.size() > kLongestShown) {
        text.replace(kLongestShown, std::string::npos, "...");
    }
    return text;
}

}  // namespace

int LineOf(const toml::node& node) {
    return std::max(1, static_cast<int>(node.source().begin.line));
}

const toml::node* TableReader::Take(std::string_view key, Need need) {
    Allow(key);
    const toml::node* found = table_.get(key);
    if (found == nullptr && need == Need::kRequired) {
        Problem(sim::LineOf(table_), std::string(key) + ": expected here, but missing");
    }
    return found;
}

void TableReader::Wrong(std::string_view key, const toml::node& found,
                        const std::string& expected) {
    Problem(sim::LineOf(found),
            std::string(key) + ": expected " + expected + ", found " + Shown(found));
}

int TableReader::LineOf(std::string_view key) const {
    const toml::node* found = table_.get(key);
    return sim::LineOf(found == nullptr ? table_ : *found);
}

std::optional<int> TableReader::Int(std::string_view key, Limits limits, Need need) {
    const toml::node* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto number = found->value_exact<std::int64_t>();
    if (!number || *number < limits.min || *number > limits.max) {
        Wrong(key, *found, "a whole number " + RangeText(limits.min, limits.max));
        return std::nullopt;
    }
    return static_cast<int>(*number);
}

std::optional<double> TableReader::Number(std::string_view key, Limits limits, Need need) {
    const toml::node* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto number = found->is_number() ? found->value<double>() : std::nullopt;
    // A "nan" in the file is outside all limits.
    if (!number || !(*number >= limits.min && *number <= limits.max)) {
        Wrong(key, *found, "a number " + RangeText(limits.min, limits.max));
        return std::nullopt;
    }
    return number;
}

std::optional<bool> TableReader::Bool(std::string_view key, Need need) {
    const toml::node* found = Take(key, need);
    const auto value = found == nullptr ? std::nullopt : found->value_exact<bool>();
    if (found != nullptr && !value) {
        Wrong(key, *found, "true or false");
    }
    return value;
}

std::optional<int> TableReader::WordValue(std::string_view key, const toml::node& found,
                                          std::span<const Word> words) {
    const auto text = found.value_exact<std::string_view>();
    std::vector<std::string> choices;
    for (const Word& word : words) {
        if (text == word.text) {
            return word.value;
        }
        choices.push_back(Quoted(word.text));
    }
    Wrong(key, found, JoinedWith(choices, "or"));
    return std::nullopt;
}

std::optional<int> TableReader::OneOf(std::string_view key, std::span<const Word> words,
                                      Need need) {
    const toml::node* found = Take(key, need);
    return found == nullptr ? std::nullopt : WordValue(key, *found, words);
}

std::optional<std::vector<int>> TableReader::ListOf(std::string_view key,
                                                    std::span<const Word> words, std::size_t count,
                                                    Need need) {
    const toml::node* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const toml::array* list = found->as_array();
    if (list == nullptr || list->size() != count) {
        Wrong(key, *found, "a list of " + std::to_string(count) + " words");
        return std::nullopt;
    }
    std::vector<int> values;
    for (const toml::node& item : *list) {
        if (const std::optional<int> value = WordValue(key, item, words)) {
            values.push_back(*value);
        }
    }
    return values.size() == count ? std::optional(values) : std::nullopt;
}

std::optional<std::string> TableReader::Text(std::string_view key, std::size_t longest, Need need) {
    const toml::node* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    auto text = found->value_exact<std::string>();
    if (!text || text->size() > longest || !IsPrintable(*text)) {
        Wrong(key, *found, "a text of 1.." + std::to_string(longest) + " characters");
        return std::nullopt;
    }
    return text;
}

std::optional<std::vector<LocatedText>> TableReader::Names(std::string_view key, std::size_t max,
                                                           Need need) {
    const toml::node* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    std::vector<const toml::node*> items;
    if (const toml::array* list = found->as_array()) {
        for (const toml::node& item : *list) {
            items.push_back(&item);
        }
    } else {
        items.push_back(found);
    }
    std::vector<LocatedText> names;
    for (const toml::node* item : items) {
        auto text = item->value_exact<std::string>();
        if (!text) {
            Wrong(key, *item, "a name or a list of names");
            return std::nullopt;
        }
        if (std::any_of(names.begin(), names.end(),
                        [&](const LocatedText& name) { return name.text == *text; })) {
            Problem(sim::LineOf(*item), std::string(key) + ": expected different names, found " +
                                            Shown(*item) + " twice");
            return std::nullopt;
        }
        names.push_back({std::move(*text), sim::LineOf(*item)});
    }
    if (names.size() > max) {
        Problem(sim::LineOf(*found), std::string(key) + ": expected at most " +
                                         std::to_string(max) + " names, found " +
                                         std::to_string(names.size()));
        return std::nullopt;
    }
    return names;
}

std::optional<int> TableReader::Version(std::string_view key, bool orNone, Need need) {
    const toml::node* found = Take(key, need);
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto text = found->value_exact<std::string_view>();
    if (orNone && text == "none") {
        return 0;
    }
    const std::optional<int> version = text ? ParseVersion(*text) : std::nullopt;
    // The two bytes that carry a version cannot hold every number.
    if (!version || !EncodeVersion(*version)) {
        Wrong(key, *found,
              std::string(orNone ? R"("none" or )" : "") + R"(a version like "1.02" or "1.02 C")" +
                  (found->is_number() ? " in quotation marks" : "") +
                  R"(, at most "9.85 G" and at most 85 after the point)");
        return std::nullopt;
    }
    return version;
}

const toml::table* TableReader::Table(std::string_view key, Need need) {
    const toml::node* found = Take(key, Need::kOptional);
    if (found == nullptr) {
        if (need == Need::kRequired) {
            // A table stands anywhere in the file, not "here".
            Problem(sim::LineOf(table_), "[" + std::string(key) + "]: expected, but missing");
        }
        return nullptr;
    }
    if (!found->is_table()) {
        Wrong(key, *found, "a table, [" + std::string(key) + "] or { ... }");
    }
    return found->as_table();
}

std::vector<const toml::table*> TableReader::Tables(std::string_view key) {
    const toml::node* found = Take(key, Need::kOptional);
    std::vector<const toml::table*> tables;
    if (found == nullptr) {
        return tables;
    }
    const std::string expected = "tables, each under its own [[" + std::string(key) + "]]";
    const toml::array* list = found->as_array();
    if (list == nullptr) {
        Wrong(key, *found, expected);
        return tables;
    }
    for (const toml::node& item : *list) {
        if (const toml::table* table = item.as_table()) {
            tables.push_back(table);
        } else {
            Wrong(key, item, expected);
        }
    }
    return tables;
}

void TableReader::RejectOtherKeys() {
    for (const auto& [key, value] : table_) {
        if (std::find(known_.begin(), known_.end(), key.str()) == known_.end()) {
            Problem(static_cast<int>(key.source().begin.line),
                    "unknown key " + Quoted(key.str()) + ": expected " + JoinedWith(known_, "or"));
        }
    }
}

}  // namespace zelvar::sim
