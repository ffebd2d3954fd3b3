// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/simulator.h"

#include <cstdlib>
#include <stdexcept>

namespace zelvar::e2e {

namespace {

constexpr std::string_view kTraceMark = "trace ";

std::vector<std::string> CommandLine(const std::string& device,
                                     const std::vector<std::string>& options) {
    std::vector<std::string> words{
        ZELVARSIM_PROGRAM, "--link",   device,
        "--no-pacing",     "--layout", ZELVAR_TEST_LAYOUTS "/mixed.toml"};
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

}  // namespace

Simulator::Simulator(const TempFolder& folder, const std::vector<std::string>& options)
    : device_(folder.Path("unit")),
      process_(CommandLine(device_, options), {}, folder.Path("simulator.err")) {
    const std::optional<std::string> greeting = process_.Console().Receive();
    if (greeting != "ready " + device_) {
        throw std::runtime_error("the simulator does not start: " + process_.Describe());
    }
}

std::vector<std::string> Simulator::Do(const std::string& command) {
    process_.Console().Send(command);
    std::vector<std::string> lines;
    while (const std::optional<std::string> line = process_.Console().Receive()) {
        if (line->starts_with(kTraceMark)) {
            trace_.push_back(line->substr(kTraceMark.size()));
            continue;
        }
        lines.push_back(*line);
        if (line->starts_with("error")) {
            throw std::runtime_error(command + ": " + *line);
        }
        if (line->starts_with("ok")) {
            return lines;
        }
    }
    throw std::runtime_error("no answer to " + command + ": " + process_.Describe());
}

std::string Simulator::Value(const std::string& name) {
    for (const std::string& line : Do("state")) {
        if (line.starts_with(name + "=")) {
            return line.substr(name.size() + 1);
        }
    }
    return {};
}

int Simulator::Count(const std::string& name) {
    return std::atoi(Value(name).c_str());
}

const std::vector<std::string>& Simulator::Trace() {
    // Whatever was traced before the answer has come in with it.
    Do("state");
    return trace_;
}

}  // namespace zelvar::e2e
