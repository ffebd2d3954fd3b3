// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "options.h"

#include <limits>

#include "console.h"

namespace zelvar::sim {

namespace {

constexpr int kLongestUnitDelayMs = 60'000;
constexpr int kBaudRates[] = {19200, 38400};

/// Takes one option's value over; false when it is none.
using TakeValue = bool (*)(Options&, std::string_view value);

bool TakeLink(Options& options, std::string_view value) {
    options.link = value;
    return !value.empty();
}

bool TakeDevice(Options& options, std::string_view value) {
    options.device = value;
    return !value.empty();
}

bool TakeNoPacing(Options& options, std::string_view) {
    options.pacing = false;
    return true;
}

bool TakeBaud(Options& options, std::string_view value) {
    for (const int baud : kBaudRates) {
        if (std::to_string(baud) == value) {
            options.baud = baud;
            return true;
        }
    }
    return false;
}

bool TakeLayout(Options& options, std::string_view value) {
    const std::optional<Layout> layout = LayoutByName(value);
    if (layout) {
        options.layout = *layout;
    }
    return layout.has_value();
}

bool TakeUnitDelay(Options& options, std::string_view value) {
    const std::optional<int> delay = ParseNumber(value, 0, kLongestUnitDelayMs);
    options.unitDelay = std::chrono::milliseconds(delay.value_or(0));
    return delay.has_value();
}

bool TakeTimeFactor(Options& options, std::string_view value) {
    const std::optional<int> factor = ParseNumber(value, 0, kMostTimeFactor);
    options.timeFactor = factor.value_or(kUsualTimeFactor);
    return factor.has_value();
}

bool TakeSeed(Options& options, std::string_view value) {
    const std::optional<int> seed = ParseNumber(value, 0, std::numeric_limits<int>::max());
    options.seed = seed.value_or(0);
    return seed.has_value();
}

bool TakeTrace(Options& options, std::string_view) {
    options.trace = true;
    return true;
}

bool TakeExplain(Options& options, std::string_view value) {
    options.explain = value;
    return !value.empty();
}

bool TakeHelp(Options& options, std::string_view) {
    options.help = true;
    return true;
}

bool TakeVersion(Options& options, std::string_view) {
    options.version = true;
    return true;
}

struct Option {
    std::string_view name;
    bool hasValue;
    TakeValue take;
};

constexpr Option kOptions[] = {
    {"--link", true, &TakeLink},
    {"--device", true, &TakeDevice},
    {"--no-pacing", false, &TakeNoPacing},
    {"--baud", true, &TakeBaud},
    {"--layout", true, &TakeLayout},
    {"--unit-delay", true, &TakeUnitDelay},
    {"--time-factor", true, &TakeTimeFactor},
    {"--seed", true, &TakeSeed},
    {"--trace", false, &TakeTrace},
    {"--explain", true, &TakeExplain},
    {"--help", false, &TakeHelp},
    {"--version", false, &TakeVersion},
};

const Option* FindOption(std::string_view name) {
    for (const Option& option : kOptions) {
        if (option.name == name) {
            return &option;
        }
    }
    return nullptr;
}

}  // namespace

std::variant<Options, std::string> ParseOptions(std::span<const std::string_view> arguments) {
    Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string name(arguments[index]);
        const Option* option = FindOption(name);
        if (option == nullptr) {
            return "unknown option " + name;
        }
        std::string_view value;
        if (option->hasValue) {
            ++index;
            if (index == arguments.size()) {
                return "missing value of " + name;
            }
            value = arguments[index];
        }
        if (!option->take(options, value)) {
            return "wrong value of " + name + ": " + std::string(value);
        }
    }
    if (!options.link.empty() && !options.device.empty()) {
        return std::string("--link and --device exclude each other");
    }
    return options;
}

std::string_view UsageText() {
    return R"(usage: zelvarsim [options]
A simulated central unit with its layout, behind a pseudo-terminal or a serial device.

  --link PATH                 a link to the pseudo-terminal, removed at the end
  --device PATH               serve this serial device instead
  --baud N                    19200 (default) or 38400, until the other end sets its own
  --no-pacing                 bytes take no time on the pseudo-terminal
  --layout default|kbf|none   the modules and the central unit
  --unit-delay MS             between a command and its reply; 1 by default
  --time-factor N             trains run N times as fast, 0..100; 1 by default
  --seed N                    engines differ a little, otherwise for each N; 0 (default): not at all
  --trace                     print every frame with its time, its bytes and its meaning
  --explain FILE              tell what the lines of a message log or a trace mean, and end;
                              "-": of standard input
  --help, --version

Prints "ready PATH" when it can be opened; then takes commands on its standard input ("help").
)";
}

}  // namespace zelvar::sim
