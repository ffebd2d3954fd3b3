// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sim/layouts/toml_tree.h"
#include "sim/text/word.h"

namespace zelvar::sim {

/// What is wrong with a described layout, and in which line.
struct LayoutProblem {
    int line = 0;
    std::string text;
};

using LayoutProblems = std::vector<LayoutProblem>;

/// The least and the greatest value that is right.
struct Limits {
    int least;
    int most;
};

enum class Need { kRequired, kOptional };

/// A text and where it stands.
struct LocatedText {
    std::string text;
    int line = 0;
};

/// Takes values out of one table by their keys. Whatever is not as expected is noted among the
/// problems and read as if it was not there, so that one reading finds all of them.
class TableReader {
  public:
    /// @param line where a missing key is reported
    TableReader(const TomlTable& table, int line, LayoutProblems& problems)
        : table_(table), line_(line), problems_(problems) {}

    std::optional<int> Whole(std::string_view key, Limits limits, Need need);
    /// A number with or without a fraction.
    std::optional<double> Number(std::string_view key, Limits limits, Need need);
    /// The value of one of the words.
    std::optional<int> OneOf(std::string_view key, std::span<const Word> words, Need need);
    /// The values of exactly `count` words.
    std::optional<std::vector<int>> ListOf(std::string_view key, std::span<const Word> words,
                                           std::size_t count, Need need);
    std::optional<bool> Truth(std::string_view key, Need need);
    /// 1 to `longest` bytes, none of them a control character.
    std::optional<std::string> Text(std::string_view key, std::size_t longest, Need need);
    std::optional<std::string> Name(std::string_view key, Need need) {
        return Text(key, kLongestName, need);
    }
    /// One name or a list of at most `most` different ones.
    std::optional<std::vector<LocatedText>> Names(std::string_view key, std::size_t most,
                                                  Need need);
    /// A version as a decimal number: "1.02 C" is 1023. With `mayBeNone` also "none", which is 0.
    std::optional<int> Version(std::string_view key, bool mayBeNone, Need need);
    /// A table, [key].
    const TomlValue* Table(std::string_view key, Need need);
    /// The tables of a list, [[key]].
    std::vector<const TomlValue*> Tables(std::string_view key);

    /// Makes a key a right one whose value is not wanted.
    void Allow(std::string_view key) { known_.push_back(key); }
    bool Has(std::string_view key) const { return Find(key) != nullptr; }
    /// The line of a key's value; that of the table when the key is not there.
    int LineOf(std::string_view key) const;
    void Problem(int line, std::string text) { problems_.push_back({line, std::move(text)}); }

    /// Reports the keys that nothing has asked for. To be called last.
    void RejectOtherKeys();

    static constexpr std::size_t kLongestName = 40;  // bytes; more would break tables

  private:
    const TomlValue* Find(std::string_view key) const;
    /// Finds a value, and remembers that its key is a right one. A missing required one is a
    /// problem.
    const TomlValue* Take(std::string_view key, Need need);
    void Wrong(std::string_view key, const TomlValue& found, const std::string& expected);
    std::optional<int> WordValue(std::string_view key, const TomlValue& found,
                                 std::span<const Word> words);

    const TomlTable& table_;
    int line_;
    LayoutProblems& problems_;
    std::vector<std::string_view> known_;
};

}  // namespace zelvar::sim
