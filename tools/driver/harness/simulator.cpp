// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/simulator.h"

#include <cstdlib>
#include <regex>
#include <stdexcept>

namespace zelvar::e2e {

namespace {

/// "rx 28 D8" of a line of the trace, "12:00:03.120  > 28 D8                       poll"; empty for
/// any other line.
std::string TracedFrame(const std::string& line) {
    static const std::regex kLine("[0-9:.]{12}  ([<>])(( [0-9A-F]{2})+)  .*");
    std::smatch parts;
    if (!std::regex_match(line, parts, kLine)) {
        return {};
    }
    return (parts[1] == ">" ? "rx" : "tx") + parts[2].str();
}

std::vector<std::string> CommandLine(const std::string& device,
                                     const std::vector<std::string>& options,
                                     Simulator::Line line) {
    std::vector<std::string> words{ZELVARSIM_PROGRAM, "--link", device, "--layout",
                                   ZELVAR_TEST_LAYOUTS "/mixed.toml"};
    if (line == Simulator::Line::kImmediate) {
        words.emplace_back("--no-pacing");
    }
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

}  // namespace

Simulator::Simulator(const TempFolder& folder, const std::vector<std::string>& options, Line line)
    : device_(folder.Path("unit")), process_(CommandLine(device_, options, line)) {
    const std::optional<std::string> greeting = process_.Receive();
    if (greeting != "ready " + device_) {
        throw std::runtime_error("the simulator does not start: " + process_.Describe());
    }
}

std::vector<std::string> Simulator::Do(const std::string& command) {
    process_.Send(command);
    std::vector<std::string> lines;
    while (const std::optional<std::string> line = process_.Receive()) {
        if (const std::string frame = TracedFrame(*line); !frame.empty()) {
            trace_.push_back(frame);
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
    for (const std::string& line : Do("dump")) {
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
    Do("dump");
    return trace_;
}

}  // namespace zelvar::e2e
