// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/toml_tree.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <sstream>
#include <toml++/toml.h>

namespace zelvar::sim {

namespace {

constexpr std::size_t kLongestShown = 60;  // characters of a text that a message repeats

/// What the library says, and what a reader of the message has to do about it.
struct SyntaxRow {
    std::string_view part;  // of the library's description
    std::string_view expected;
};

constexpr std::string_view kOnce = "each key and each [table] once expected";
constexpr std::string_view kValue =
    "a text in quotation marks, a number, true, false or a list expected";
constexpr std::string_view kQuoteInLine =
    "a closing quotation mark expected before the end of the line";

constexpr SyntaxRow kSyntax[] = {
    {"cannot redefine existing", kOnce},
    {"could not determine value type", kValue},
    {"expected value", kValue},
    // A text without quotation marks, by what it begins with.
    {"parsing boolean", kValue},
    {"expected 'nan'", kValue},
    {"expected 'inf'", kValue},
    {"string: encountered end-of-file", "a closing quotation mark expected"},
};

/// Both kinds of quotation marks; only the library knows where a text begins.
constexpr std::string_view kLineEndInText[] = {
    "string: unescaped control characters",
    "literal string: control characters",
};

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

bool IsControl(char c) {
    return std::iscntrl(static_cast<unsigned char>(c)) != 0;
}

struct Shower {
    std::string operator()(const TomlTable&) const { return "a table"; }
    std::string operator()(const TomlArray& list) const {
        return "a list of " + std::to_string(list.size());
    }
    std::string operator()(const std::string& text) const {
        std::string shown = text.substr(0, kLongestShown);
        // A message is one line, and no terminal's business.
        std::replace_if(shown.begin(), shown.end(), &IsControl, '?');
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

/// Whether line `line` of the text has control characters, tabs and its end apart.
bool HasControls(std::string_view text, int line) {
    for (; line > 1 && !text.empty(); --line) {
        text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    }
    text = text.substr(0, text.find('\n'));
    text.remove_suffix(text.ends_with('\r') ? 1 : 0);
    return std::any_of(text.begin(), text.end(), [](char c) { return c != '\t' && IsControl(c); });
}

/// Other versions of the library have other words: what is not known here is passed on.
std::string Expected(std::string_view description, std::string_view text, int line) {
    const auto said = [&](std::string_view part) {
        return description.find(part) != std::string_view::npos;
    };
    for (const SyntaxRow& row : kSyntax) {
        if (said(row.part)) {
            return std::string(row.expected);
        }
    }
    // The line's end is such a character too, and far the most likely one.
    if (std::any_of(std::begin(kLineEndInText), std::end(kLineEndInText), said) &&
        !HasControls(text, line)) {
        return std::string(kQuoteInLine);
    }
    constexpr std::string_view kOpening = "Error while parsing ";
    description.remove_prefix(description.starts_with(kOpening) ? kOpening.size() : 0);
    return std::string(description);
}

}  // namespace

std::variant<TomlValue, TomlError> ParseToml(std::string_view text) {
    try {
        return Convert(toml::parse(text));
    } catch (const toml::parse_error& error) {
        const int line = LineOf(error.source());
        return TomlError{line, Expected(error.description(), text, line)};
    }
}

std::string Shown(const TomlValue& value) {
    return std::visit(Shower{}, value.value);
}

}  // namespace zelvar::sim
