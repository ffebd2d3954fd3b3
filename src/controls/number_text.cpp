// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

namespace zelvar {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t from) {
    while (from < text.size() && IsDigit(text[from])) {
        ++from;
    }
    return from;
}

/// The end of the number that begins at the text's first character after its sign, or 0.
std::size_t NumberEnd(std::string_view text) {
    std::size_t end = SkipDigits(text, 0);
    std::size_t digits = end;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fractionEnd = SkipDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digits == 0) {
        return 0;
    }
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) {
            ++exponent;
        }
        if (const std::size_t exponentEnd = SkipDigits(text, exponent); exponentEnd > exponent) {
            end = exponentEnd;
        }
    }
    return end;
}

/// The decimal exponent of a number's first digit that is not 0, counted from the point.
long Magnitude(std::string_view mantissa) {
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<long>(mantissa.find_first_not_of("0."));
    return first < point ? point - first : point - first + 1;
}

/// A number that does not fit a double is either too large or too close to 0.
double OutOfRange(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    long exponent = 0;
    if (mark < number.size()) {
        const bool negative = number[mark + 1] == '-';
        const std::size_t digits = number.find_first_of("0123456789", mark);
        const auto result =
            std::from_chars(number.data() + digits, number.data() + number.size(), exponent);
        if (result.ec == std::errc::result_out_of_range) {
            // No text is long enough to make up for such an exponent.
            return negative ? 0.0 : std::numeric_limits<double>::max();
        }
        exponent = negative ? -exponent : exponent;
    }
    const bool large = Magnitude(number.substr(0, mark)) > -exponent;
    return large ? std::numeric_limits<double>::max() : 0.0;
}

}  // namespace

double Val(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return 0;
    }
    text.remove_prefix(first);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') {
        text.remove_prefix(1);
    }
    const std::string number(text.substr(0, NumberEnd(text)));
    if (number.empty()) {
        return 0;
    }
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = OutOfRange(number);
    }
    return negative ? -value : value;
}

int ValToInt(std::string_view text, int minimum, int maximum) {
    // Clamped first, so that the rounded value always fits an int; the limits are whole.
    const double clamped =
        std::clamp(Val(text), static_cast<double>(minimum), static_cast<double>(maximum));
    const double floor = std::floor(clamped);
    const double fraction = clamped - floor;
    const auto below = static_cast<int>(floor);
    if (fraction > 0.5 || (fraction == 0.5 && below % 2 != 0)) {
        return below + 1;
    }
    return below;
}

}  // namespace zelvar
