// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "sim/text/words.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// The names that an argument can be, or the numbers that completion offers for it.
using Offer = std::vector<std::string> (*)(const UnitState&);

/// One argument of a console command. Its kind decides what is right, and with it the usage, the
/// errors, completion and help. Made by the functions below.
struct Argument {
    enum class Kind {
        kWord,    // itself; it has no value
        kNumber,  // min..max
        kByte,    // two hexadecimal digits
        kChoice,  // one of `choices`
        kName,    // one of those offered, with its spaces; its value is the place in that list
    };

    Kind kind = Kind::kWord;
    std::string_view name;
    int min = 0;
    int max = 0;
    std::span<const Word> choices;
    Offer offer = nullptr;
    bool isOptional = false;
    bool isRepeated = false;  // once or more
};

constexpr Argument Literal(std::string_view word) {
    return {Argument::Kind::kWord, word, 0, 0, {}, nullptr, false, false};
}
constexpr Argument Number(std::string_view name, int min, int max, Offer offer = nullptr) {
    return {Argument::Kind::kNumber, name, min, max, {}, offer, false, false};
}
constexpr Argument Choice(std::span<const Word> choices) {
    return {Argument::Kind::kChoice, {}, 0, 0, choices, nullptr, false, false};
}
constexpr Argument Name(std::string_view name, Offer offer) {
    return {Argument::Kind::kName, name, 0, 0, {}, offer, false, false};
}
constexpr Argument Bytes(std::string_view name) {
    return {Argument::Kind::kByte, name, 0, 0, {}, nullptr, false, true};
}
constexpr Argument Optional(Argument argument) {
    argument.isOptional = true;
    return argument;
}

inline constexpr Word kOnOff[] = {{"on", 1}, {"off", 0}};

/// The arguments of a command in their order.
class ArgumentList {
  public:
    constexpr ArgumentList(std::initializer_list<Argument> arguments) : count_(arguments.size()) {
        std::copy(arguments.begin(), arguments.end(), arguments_.begin());
    }
    constexpr const Argument* begin() const { return arguments_.data(); }
    constexpr const Argument* end() const { return arguments_.data() + count_; }

  private:
    std::array<Argument, 3> arguments_{};
    std::size_t count_;
};

/// What a line says for the arguments of a command, in their order: a number, the value of a
/// choice, or the place of a name in its list. Words without a value are left out, and optional
/// arguments may be missing at the end.
using Values = std::vector<int>;

/// Why words do not fit the arguments.
struct Misfit {
    int place = 0;                      // of the first wrong word; how many words fit
    std::vector<std::string> expected;  // one of these words, in place of `found`
    std::string found;
    std::string message;  // the whole error when it is about anything else; empty: the usage
};

std::variant<Values, Misfit> ParseArguments(const UnitState& state, const ArgumentList& arguments,
                                            std::span<const std::string> words);

/// "B S forward|reverse [CM]"
std::string Usage(const ArgumentList& arguments);
/// "B 0..255, S 0..63": the arguments that have a range; empty without any.
std::string Ranges(const ArgumentList& arguments);
/// The words that an argument can be, as far as there is a list of them.
std::vector<std::string> OfferedWords(const UnitState& state, const Argument& argument);

}  // namespace zelvar::sim
