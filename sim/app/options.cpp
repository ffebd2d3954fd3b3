// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/options.h"

#include <limits>

#include "sim/console/console.h"

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
    options.layoutName = value;
    return !value.empty();
}

bool TakeUnitDelay(Options& options, std::string_view value) {
    const std::optional<int> delay = ParseInt(value, 0, kLongestUnitDelayMs);
    options.unitDelay = std::chrono::milliseconds(delay.value_or(0));
    return delay.has_value();
}

bool TakeTimeFactor(Options& options, std::string_view value) {
    const std::optional<int> factor = ParseInt(value, 0, kMostTimeFactor);
    options.timeFactor = factor.value_or(kUsualTimeFactor);
    return factor.has_value();
}

bool TakeSeed(Options& options, std::string_view value) {
    const std::optional<int> seed = ParseInt(value, 0, std::numeric_limits<int>::max());
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

bool TakeListLayouts(Options& options, std::string_view) {
    options.listLayouts = true;
    return true;
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
    std::string_view value;     // as the help calls it; empty: it takes none
    std::string_view expected;  // of the value, for an error; empty: it takes none
    TakeValue take;
    std::string_view help;  // a line feed begins another line of its column
};

constexpr Option kOptions[] = {
    {"--link", "PATH", "a path", &TakeLink, "a link to the pseudo-terminal, removed at the end"},
    {"--device", "PATH", "a path", &TakeDevice, "serve this serial device instead"},
    {"--baud", "N", "19200 or 38400", &TakeBaud,
     "19200 (default) or 38400, until the other end sets its own"},
    {"--no-pacing", "", "", &TakeNoPacing, "bytes take no time on the pseudo-terminal"},
    {"--layout", "NAME|FILE", "a name or a path", &TakeLayout,
     "the central unit, its modules and its track: a shipped\n"
     "layout (\"club\" is the default), or a file by a path with a\n"
     "slash or ending in .toml, or \"none\": a unit alone"},
    {"--list-layouts", "", "", &TakeListLayouts, "lists the shipped layouts and ends"},
    {"--unit-delay", "MS", "a whole number 0..60000", &TakeUnitDelay,
     "between a command and its reply; 1 by default"},
    {"--time-factor", "N", "a whole number 0..100", &TakeTimeFactor,
     "simulated seconds a second, 0..100: trains run N times as\n"
     "fast, and at 0 they stand; 1 by default"},
    {"--seed", "N", "a whole number 0..2147483647", &TakeSeed,
     "engines differ a little, otherwise for each N; by default\n"
     "(0) all run as described"},
    {"--trace", "", "", &TakeTrace, "prints every frame with its time, its bytes and its meaning"},
    {"--explain", "FILE", "a path or \"-\"", &TakeExplain,
     "tells what the lines of a message log or a trace mean, and\n"
     "ends; \"-\": of standard input"},
    {"--help", "", "", &TakeHelp, "shows this and ends; -h does too"},
    {"--version", "", "", &TakeVersion, "shows the version and ends"},
};

const Option* FindOption(std::string_view name) {
    if (name == "-h") {
        name = "--help";
    }
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
        const std::size_t sign = arguments[index].find('=');
        const bool joined = sign != std::string_view::npos;  // "--option=value"
        const std::string name(arguments[index].substr(0, sign));
        const Option* option = FindOption(name);
        if (option == nullptr) {
            return "unknown option " + name;
        }
        std::string_view value;
        if (option->value.empty() && joined) {
            return name + " takes no value";
        }
        if (joined) {
            value = arguments[index].substr(sign + 1);
        } else if (!option->value.empty()) {
            ++index;
            if (index == arguments.size()) {
                return "missing value of " + name + ": " + std::string(option->expected) +
                       " expected";
            }
            value = arguments[index];
        }
        if (!option->take(options, value)) {
            return "wrong value of " + name + ": " + std::string(option->expected) +
                   " expected, found \"" + std::string(value) + '"';
        }
    }
    if (!options.link.empty() && !options.device.empty()) {
        return std::string("--link and --device exclude each other");
    }
    return options;
}

std::string UsageText() {
    constexpr std::size_t kHelpColumn = 24;
    std::string text =
        "usage: zelvarsim [options]\n"
        "A simulated central unit with its layout, behind a pseudo-terminal or a serial device.\n"
        "\n";
    for (const Option& option : kOptions) {
        std::string line = "  " + std::string(option.name);
        if (!option.value.empty()) {
            line.append(" ").append(option.value);
        }
        line.resize(kHelpColumn, ' ');
        for (const char c : option.help) {
            line += c;
            if (c == '\n') {
                line.append(kHelpColumn, ' ');
            }
        }
        text += line + '\n';
    }
    return text + '\n' +
           "Prints \"ready PATH\" when it can be opened; then takes commands on its standard "
           "input\n"
           "(\"help\" lists them). man zelvarsim tells more.\n";
}

std::vector<std::string> OptionNames() {
    std::vector<std::string> names;
    for (const Option& option : kOptions) {
        names.emplace_back(option.name);
    }
    return names;
}

}  // namespace zelvar::sim
