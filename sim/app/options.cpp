// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/options.h"

#include <CLI/CLI.hpp>
#include <limits>

#include "sim/text/number.h"
#include "sim/text/words.h"

namespace zelvar::sim {

namespace {

constexpr int kMaxUnitDelayMs = 60'000;
constexpr int kBaudRates[] = {19200, 38400};

std::string Expected(const std::string& what, const std::string& found) {
    return "expected " + what + ", found " + Quoted(found);
}

/// The numbers of the simulator's console: decimal, or hexadecimal with 0x.
CLI::Validator WholeNumber(int min, int max) {
    const auto check = [min, max](std::string& text) {
        const auto number = ParseInt(text, min, max);
        if (!number) {
            return Expected("a whole number " + RangeText(min, max), text);
        }
        text = std::to_string(*number);
        return std::string();
    };
    return {check, ""};
}

CLI::Validator BaudRate() {
    const auto check = [](std::string& text) {
        const auto isIt = [&](int rate) { return text == std::to_string(rate); };
        return std::any_of(std::begin(kBaudRates), std::end(kBaudRates), isIt)
                   ? std::string()
                   : Expected("19200 or 38400", text);
    };
    return {check, ""};
}

CLI::Validator NotEmpty(const std::string& what) {
    const auto check = [what](std::string& text) {
        return text.empty() ? Expected(what, text) : std::string();
    };
    return {check, ""};
}

/// Describes the command line; parsing it fills `options`.
void Describe(CLI::App& app, Options& options) {
    app.name("zelvarsim");
    app.get_formatter()->column_width(26);
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    auto* link =
        app.add_option("--link", options.link, "A link to the pseudo-terminal, removed at the end")
            ->type_name("PATH")
            ->check(NotEmpty("a path"));
    app.add_option("--device", options.device, "Serve this serial device instead")
        ->type_name("PATH")
        ->check(NotEmpty("a path"))
        ->excludes(link);
    app.add_option("--baud", options.baud,
                   "19200 (default) or 38400, until the other end\nsets its own")
        ->type_name("N")
        ->check(BaudRate());
    app.add_flag_callback(
        "--no-pacing", [&options] { options.pacing = false; },
        "Bytes take no time on the pseudo-terminal");
    app.add_option("--layout", options.layoutName,
                   "A shipped layout (default: club), a file (a path with\na slash or that ends in "
                   ".toml), or \"none\": a unit\nwithout modules and track")
        ->type_name("NAME|FILE")
        ->check(NotEmpty("a name or a path"));
    app.add_flag("--list-layouts", options.listLayouts, "List the shipped layouts and end");
    app.add_option_function<int>(
           "--unit-delay",
           [&options](int delay) { options.unitDelay = std::chrono::milliseconds(delay); },
           "Milliseconds between a command and its reply,\n0..60000; default: 1")
        ->type_name("MS")
        ->transform(WholeNumber(0, kMaxUnitDelayMs));
    app.add_option("--time-factor", options.timeFactor,
                   "Simulated seconds per second, 0..100: trains run N\ntimes as fast; at 0 they "
                   "stop; default: 1")
        ->type_name("N")
        ->transform(WholeNumber(0, kMaxTimeFactor));
    app.add_option("--seed", options.seed,
                   "Makes engines differ a little, otherwise for each N;\nat 0 (default) they run "
                   "as described")
        ->type_name("N")
        ->transform(WholeNumber(0, std::numeric_limits<int>::max()));
    app.add_flag("--trace", options.trace, "Show every frame with its time, bytes and meaning");
    app.add_option("--explain", options.explain,
                   "Explain the lines of a message log or a trace and\nend; \"-\": standard input")
        ->type_name("FILE")
        ->check(NotEmpty("a path or \"-\""));
    app.set_help_flag("-h,--help", "Show this and end");
    app.set_version_flag("--version", "zelvarsim " ZELVAR_SIM_VERSION, "Show the version and end");
    for (CLI::Option* option : app.get_options()) {
        option->disable_flag_override();
    }
    app.footer(
        "Prints \"ready PATH\" when that can be opened; then takes commands on its standard\n"
        "input (\"help\" lists them). The manual is \"man zelvarsim\".");
}

constexpr const char* kDescription =
    "A simulated central unit with its layout, behind a pseudo-terminal or a serial\ndevice.";

}  // namespace

std::variant<Options, EarlyEnd> ParseOptions(std::span<const std::string_view> arguments) {
    Options options;
    CLI::App app(kDescription);
    Describe(app, options);
    try {
        // CLI11 takes a vector from its end.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        return EarlyEnd{0, app.help()};
    } catch (const CLI::CallForVersion& version) {
        return EarlyEnd{0, std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
        return EarlyEnd{kWrongUsage, "zelvarsim: " + std::string(error.what()) +
                                         "\nTry \"zelvarsim --help\".\n"};
    }
    return options;
}

std::string UsageText() {
    Options options;
    CLI::App app(kDescription);
    Describe(app, options);
    return app.help();
}

std::vector<std::string> OptionForms() {
    Options options;
    CLI::App app(kDescription);
    Describe(app, options);
    std::vector<std::string> forms;
    for (const CLI::Option* option : app.get_options()) {
        const std::string value = option->get_type_name();
        forms.push_back("--" + option->get_lnames().front() + (value.empty() ? "" : " " + value));
    }
    return forms;
}

}  // namespace zelvar::sim
