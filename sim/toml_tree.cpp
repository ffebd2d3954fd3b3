// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "toml_tree.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <toml++/toml.h>

namespace zelvar::sim {

namespace {

constexpr std::size_t kLongestShown = 60;  // characters of a text that a message repeats

int LineOf(const toml::source_region& region) {
    return static_cast<int>(region.begin.line);
}

// toml++ bounds the depth of a document, and with it that of this recursion.
TomlValue Convert(const toml::node& node) {  // NOLINT(misc-no-recursion)
    TomlValue result{TomlDate{}, LineOf(node.source())};
    if (const toml::table* table = node.as_table()) {
        TomlTable entries;
        for (const auto& [key, value] : *table) {
            entries.push_back({std::string(key.str()), LineOf(key.source()), Convert(value)});
        }
        // The library sorts by key.
        std::stable_sort(entries.begin(), entries.end(),
                         [](const TomlEntry& a, const TomlEntry& b) { return a.line < b.line; });
        result.value = std::move(entries);
    } else if (const toml::array* array = node.as_array()) {
        TomlArray values;
        for (const toml::node& value : *array) {
            values.push_back(Convert(value));
        }
        result.value = std::move(values);
    } else if (const auto* text = node.as_string()) {
        result.value = text->get();
    } else if (const auto* whole = node.as_integer()) {
        result.value = whole->get();
    } else if (const auto* number = node.as_floating_point()) {
        result.value = number->get();
    } else if (const auto* truth = node.as_boolean()) {
        result.value = truth->get();
    }
    return result;
}

struct Shower {
    std::string operator()(const TomlTable&) const { return "a table"; }
    std::string operator()(const TomlArray& list) const {
        return "a list of " + std::to_string(list.size());
    }
    std::string operator()(const std::string& text) const {
        std::string shown = text.substr(0, kLongestShown);
        // A message is one line, and no terminal's business.
        std::replace_if(
            shown.begin(), shown.end(),
            [](char c) { return std::iscntrl(static_cast<unsigned char>(c)) != 0; }, '?');
        return '"' + shown + (shown.size() < text.size() ? "...\"" : "\"");
    }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const {
        std::ostringstream out;
        out << number;
        return out.str();
    }
    std::string operator()(bool truth) const { return truth ? "true" : "false"; }
    std::string operator()(const TomlDate&) const { return "a date or time"; }
};

}  // namespace

std::variant<TomlValue, TomlError> ParseToml(std::string_view text) {
    try {
        return Convert(toml::parse(text));
    } catch (const toml::parse_error& error) {
        return TomlError{LineOf(error.source()), std::string(error.description())};
    }
}

std::string Shown(const TomlValue& value) {
    return std::visit(Shower{}, value.value);
}

}  // namespace zelvar::sim
