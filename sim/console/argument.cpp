// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/argument.h"

#include <cctype>

#include "sim/text/number.h"

namespace zelvar::sim {

namespace {

using Kind = Argument::Kind;
using WordSpan = std::span<const std::string>;

/// "unknown train grene; did you mean green?", or with the known ones if they are few.
std::string UnknownName(const Argument& argument, const std::string& given,
                        const std::vector<std::string>& known) {
    constexpr std::size_t kMaxListed = 8;
    std::string what(argument.name);
    std::transform(what.begin(), what.end(), what.begin(),
                   [](unsigned char letter) { return std::tolower(letter); });
    const std::string unknown = "unknown " + what + " " + given;
    if (known.empty()) {
        return unknown + ": the layout has none";
    }
    if (const auto nearest = NearestWord(given, known)) {
        return unknown + "; did you mean " + *nearest + "?";
    }
    return known.size() > kMaxListed ? unknown + ": none of the " + std::to_string(known.size())
                                     : unknown + ": expected " + JoinedWith(known, "or");
}

/// Fits words to arguments from the front.
class Fitter {
  public:
    Fitter(const UnitState& state, WordSpan words) : state_(state), words_(words) {}

    /// Whether the next words are this argument; if not, `misfit` says why.
    bool Take(const Argument& argument) {
        if (rest().empty()) {
            return argument.isOptional;  // otherwise the usage says what is missing
        }
        switch (argument.kind) {
            case Kind::kWord:
            case Kind::kChoice:
                return TakeChoice(argument);
            case Kind::kNumber:
                return TakeNumber(argument);
            case Kind::kByte:
                return TakeBytes(argument);
            case Kind::kName:
                return TakeName(argument);
        }
        return false;
    }
    WordSpan rest() const { return words_.subspan(taken_); }

    Values values;
    Misfit misfit;

  private:
    void Advance(std::size_t words) {
        taken_ += words;
        misfit.place += static_cast<int>(words);
    }

    bool TakeChoice(const Argument& argument) {
        if (argument.kind == Kind::kWord && rest().front() == argument.name) {
            Advance(1);
            return true;
        }
        for (const Word& choice : argument.choices) {
            if (rest().front() == choice.text) {
                values.push_back(choice.value);
                Advance(1);
                return true;
            }
        }
        misfit.expected = OfferedWords(state_, argument);
        misfit.found = rest().front();
        return false;
    }

    bool TakeNumber(const Argument& argument) {
        const auto number = ParseInt(rest().front(), argument.min, argument.max);
        if (!number) {
            misfit.message = std::string(argument.name) + ": expected " +
                             RangeText(argument.min, argument.max) + ", found " + rest().front();
            return false;
        }
        values.push_back(*number);
        Advance(1);
        return true;
    }

    bool TakeBytes(const Argument& argument) {
        constexpr std::size_t kDigits = 2;
        constexpr int kMaxByte = 255;
        for (const std::string& word : rest()) {
            const auto byte =
                word.size() <= kDigits ? ParseInt("0x" + word, 0, kMaxByte) : std::nullopt;
            if (!byte) {
                misfit.message =
                    std::string(argument.name) + ": expected two hexadecimal digits, found " + word;
                return false;
            }
            values.push_back(*byte);
        }
        Advance(rest().size());
        return true;
    }

    /// Names can have spaces; the longest one counts.
    bool TakeName(const Argument& argument) {
        const std::vector<std::string> known = argument.offer(state_);
        std::size_t length = 0;
        int found = 0;
        std::string name;
        for (std::size_t count = 1; count <= rest().size(); ++count) {
            name.append(count == 1 ? "" : " ").append(rest()[count - 1]);
            const auto match = std::find(known.begin(), known.end(), name);
            if (match != known.end()) {
                length = count;
                found = static_cast<int>(match - known.begin());
            }
        }
        if (length == 0) {
            misfit.message = UnknownName(argument, rest().front(), known);
            return false;
        }
        values.push_back(found);
        Advance(length);
        return true;
    }

    const UnitState& state_;
    WordSpan words_;
    std::size_t taken_ = 0;
};

}  // namespace

std::variant<Values, Misfit> ParseArguments(const UnitState& state, const ArgumentList& arguments,
                                            std::span<const std::string> words) {
    Fitter fitter(state, words);
    for (const Argument& argument : arguments) {
        if (!fitter.Take(argument)) {
            return fitter.misfit;
        }
    }
    if (!fitter.rest().empty()) {
        return fitter.misfit;
    }
    return fitter.values;
}

std::string Usage(const ArgumentList& arguments) {
    std::string usage;
    for (const Argument& argument : arguments) {
        std::string form(argument.name);
        for (const Word& choice : argument.choices) {
            form.append(form.empty() ? "" : "|").append(choice.text);
        }
        form += argument.isRepeated ? "..." : "";
        usage += usage.empty() ? "" : " ";
        usage += argument.isOptional ? "[" + form + "]" : form;
    }
    return usage;
}

std::string Ranges(const ArgumentList& arguments) {
    std::string ranges;
    for (const Argument& argument : arguments) {
        if (argument.kind == Kind::kNumber) {
            ranges.append(ranges.empty() ? "" : ", ").append(argument.name);
            ranges += " " + RangeText(argument.min, argument.max);
        }
    }
    return ranges;
}

std::vector<std::string> OfferedWords(const UnitState& state, const Argument& argument) {
    if (argument.kind == Kind::kWord) {
        return {std::string(argument.name)};
    }
    std::vector<std::string> words =
        argument.offer == nullptr ? std::vector<std::string>() : argument.offer(state);
    for (const Word& choice : argument.choices) {
        words.emplace_back(choice.text);
    }
    return words;
}

}  // namespace zelvar::sim
