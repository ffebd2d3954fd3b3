// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <cstdint>
#include <optional>

#include "sim/console/console.h"

namespace zelvar::sim {

namespace {

using std::chrono::milliseconds;

constexpr Argument kReplies = Number("N", 0, 1'000'000);  // far more than any test asks for
constexpr Argument kDelay = Number("MS", 0, 3'600'000);   // up to an hour

ConsoleResult Silent(ConsoleContext& context, const Values& values) {
    context.faults.SetSilent(values[0] != 0);
    return {};
}

ConsoleResult SilentAfter(ConsoleContext& context, const Values& values) {
    context.faults.SetSilentAfter(values[0]);
    return {};
}

ConsoleResult Late(ConsoleContext& context, const Values& values) {
    context.faults.SetLate(milliseconds(values[0]),
                           values.size() > 1 ? std::optional(values[1]) : std::nullopt);
    return {};
}

ConsoleResult BadChecksum(ConsoleContext& context, const Values& values) {
    context.faults.SetBadChecksums(values[0]);
    return {};
}

ConsoleResult Short(ConsoleContext& context, const Values& values) {
    context.faults.SetShort(values[0]);
    return {};
}

ConsoleResult Double(ConsoleContext& context, const Values& values) {
    context.faults.SetDouble(values[0]);
    return {};
}

ConsoleResult Stray(ConsoleContext& context, const Values& values) {
    std::vector<std::uint8_t> bytes;
    for (const int value : values) {
        bytes.push_back(static_cast<std::uint8_t>(value));
    }
    context.faults.AddStray(bytes);
    return {};
}

ConsoleResult Drip(ConsoleContext& context, const Values& values) {
    context.faults.SetDrip(milliseconds(values[0]));
    return {};
}

ConsoleResult Defer(ConsoleContext& context, const Values& values) {
    context.unit.DeferContent(values[0]);
    return {};
}

ConsoleResult ClearFaults(ConsoleContext& context, const Values&) {
    context.faults = Faults();
    context.unit.DeferContent(0);
    return {};
}

constexpr ConsoleCommand kCommands[] = {
    {"silent", {Choice(kOnOff)}, &Silent, "Answers nothing, or everything again.", "silent on"},
    {"silent-after",
     {kReplies},
     &SilentAfter,
     "Answers the next N frames, then nothing until \"silent off\".",
     "silent-after 3"},
    {"late",
     {kDelay, Optional(kReplies)},
     &Late,
     "Delays the next N replies by MS milliseconds; without N all of them, until \"late 0\".",
     "late 500 2"},
    {"bad-checksum",
     {kReplies},
     &BadChecksum,
     "Sends the next N replies with a wrong checksum.",
     "bad-checksum 1"},
    {"short", {kReplies}, &Short, "Sends the next N replies without their checksum.", "short 1"},
    {"double", {kReplies}, &Double, "Sends the next N replies twice.", "double 1"},
    {"stray", {Bytes("HEX")}, &Stray, "Sends these bytes before the next reply.", "stray FF 08"},
    {"drip",
     {kDelay},
     &Drip,
     "Waits MS milliseconds longer between two bytes; \"drip 0\" ends it.",
     "drip 50"},
    {"defer",
     {kReplies},
     &Defer,
     "Empties the next N replies that carry something; later polls bring their content.",
     "defer 1"},
    {"clear-faults",
     {},
     &ClearFaults,
     "Ends every fault of the line: the unit answers everything as usual.",
     "clear-faults"},
};

}  // namespace

ConsoleGroup FaultConsoleCommands() {
    return {"Faults of the line", kCommands};
}

}  // namespace zelvar::sim
