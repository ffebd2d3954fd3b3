// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <toml++/toml.h>
#include <vector>

#include "sim/layouts/layout_problem.h"
#include "sim/text/words.h"

namespace zelvar::sim {

/// Both ends are right values.
struct Limits {
    int min;
    int max;
};

enum class Need { kRequired, kOptional };

/// A text and the line it stands in.
struct LocatedText {
    std::string text;
    int line = 0;
};

/// Where a value begins; the line of a file without any is 1.
int LineOf(const toml::node& node);

/// Takes values out of one table by their keys. A value that is not as expected is added to the
/// problems and read as if it were not there, so that one reading finds all problems.
class TableReader {
  public:
    TableReader(const toml::table& table, LayoutProblems& problems)
        : table_(table), problems_(problems) {}

    std::optional<int> Int(std::string_view key, Limits limits, Need need);
    /// A number with or without a fraction.
    std::optional<double> Number(std::string_view key, Limits limits, Need need);
    std::optional<bool> Bool(std::string_view key, Need need);
    /// The value of one of the words.
    std::optional<int> OneOf(std::string_view key, std::span<const Word> words, Need need);
    /// The values of exactly `count` words.
    std::optional<std::vector<int>> ListOf(std::string_view key, std::span<const Word> words,
                                           std::size_t count, Need need);
    /// 1 to `longest` bytes, none of them a control character.
    std::optional<std::string> Text(std::string_view key, std::size_t longest, Need need);
    std::optional<std::string> Name(std::string_view key, Need need) {
        return Text(key, kLongestName, need);
    }
    /// One name or a list of at most `max` different ones.
    std::optional<std::vector<LocatedText>> Names(std::string_view key, std::size_t max, Need need);
    /// A version as a decimal number: "1.02 C" is 1023. With `orNone` also "none", which is 0.
    std::optional<int> Version(std::string_view key, bool orNone, Need need);
    /// A table, [key].
    const toml::table* Table(std::string_view key, Need need);
    /// The tables of a list, [[key]].
    std::vector<const toml::table*> Tables(std::string_view key);

    /// Accepts a key whose value is not read.
    void Allow(std::string_view key) { known_.emplace_back(key); }
    bool Has(std::string_view key) const { return table_.contains(key); }
    /// The line of a key's value; that of the table when the key is not there.
    int LineOf(std::string_view key) const;
    void Problem(int line, std::string text) { problems_.push_back({line, std::move(text)}); }

    /// Reports the keys that were neither read nor allowed. Call it last.
    void RejectOtherKeys();

    static constexpr std::size_t kLongestName = 40;  // bytes; longer ones would break tables

  private:
    /// The value of a key, which is accepted from now on. A missing required one is a problem.
    const toml::node* Take(std::string_view key, Need need);
    void Wrong(std::string_view key, const toml::node& found, const std::string& expected);
    std::optional<int> WordValue(std::string_view key, const toml::node& found,
                                 std::span<const Word> words);

    const toml::table& table_;
    LayoutProblems& problems_;
    std::vector<std::string> known_;
};

}  // namespace zelvar::sim
