// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console.h"

namespace zelvar::sim {

namespace {

constexpr int kMostReplies = 1'000'000;     // far more than any test asks for
constexpr int kLongestDelayMs = 3'600'000;  // an hour
constexpr int kMostByte = 255;
constexpr std::size_t kStrayDigits = 2;

/// Carries out a command whose only argument is a number of replies.
template <typename Action>
ConsoleResult WithReplies(ConsoleArguments arguments, Action action) {
    const std::optional<int> replies = ParseInt(arguments[0], 0, kMostReplies);
    if (!replies) {
        return RangeError("N", 0, kMostReplies);
    }
    action(*replies);
    return Ok();
}

ConsoleResult Silent(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<bool> silent = ParseSwitch(arguments[0]);
    if (!silent) {
        return Error("on or off expected");
    }
    context.faults.SetSilent(*silent);
    return Ok();
}

ConsoleResult SilentAfter(ConsoleContext& context, ConsoleArguments arguments) {
    return WithReplies(arguments, [&](int replies) { context.faults.SetSilentAfter(replies); });
}

ConsoleResult Late(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> delay = ParseInt(arguments[0], 0, kLongestDelayMs);
    if (!delay) {
        return RangeError("MS", 0, kLongestDelayMs);
    }
    std::optional<int> replies;
    if (arguments.size() > 1) {
        replies = ParseInt(arguments[1], 0, kMostReplies);
        if (!replies) {
            return RangeError("N", 0, kMostReplies);
        }
    }
    context.faults.SetLate(std::chrono::milliseconds(*delay), replies);
    return Ok();
}

ConsoleResult BadChecksum(ConsoleContext& context, ConsoleArguments arguments) {
    return WithReplies(arguments, [&](int replies) { context.faults.SetBadChecksums(replies); });
}

ConsoleResult Short(ConsoleContext& context, ConsoleArguments arguments) {
    return WithReplies(arguments, [&](int replies) { context.faults.SetShort(replies); });
}

ConsoleResult Double(ConsoleContext& context, ConsoleArguments arguments) {
    return WithReplies(arguments, [&](int replies) { context.faults.SetDouble(replies); });
}

ConsoleResult Stray(ConsoleContext& context, ConsoleArguments arguments) {
    std::vector<std::uint8_t> bytes;
    for (const std::string& word : arguments) {
        const std::optional<int> byte =
            word.size() <= kStrayDigits ? ParseInt("0x" + word, 0, kMostByte) : std::nullopt;
        if (!byte) {
            return Error("two hexadecimal digits expected: " + word);
        }
        bytes.push_back(static_cast<std::uint8_t>(*byte));
    }
    context.faults.AddStray(bytes);
    return Ok();
}

ConsoleResult Defer(ConsoleContext& context, ConsoleArguments arguments) {
    return WithReplies(arguments, [&](int replies) { context.unit.DeferContent(replies); });
}

ConsoleResult Drip(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> gap = ParseInt(arguments[0], 0, kLongestDelayMs);
    if (!gap) {
        return RangeError("MS", 0, kLongestDelayMs);
    }
    context.faults.SetDrip(std::chrono::milliseconds(*gap));
    return Ok();
}

constexpr ConsoleCommand kCommands[] = {
    {"silent", "on|off", 1, 1, &Silent, "Answers nothing, or everything again.", "silent on"},
    {"silent-after", "N", 1, 1, &SilentAfter,
     "Answers the next N frames, then nothing until \"silent off\".", "silent-after 3"},
    {"late", "MS [N]", 1, 2, &Late,
     "Delays the next N replies by MS milliseconds; without N all of them, until \"late 0\".",
     "late 500 2"},
    {"bad-checksum", "N", 1, 1, &BadChecksum, "Sends the next N replies with a wrong checksum.",
     "bad-checksum 1"},
    {"short", "N", 1, 1, &Short, "Sends the next N replies without their checksum.", "short 1"},
    {"double", "N", 1, 1, &Double, "Sends the next N replies twice.", "double 1"},
    {"stray", "HEX...", 1, kAnyNumberOfArguments, &Stray,
     "Sends these bytes before the next reply.", "stray FF 08"},
    {"drip", "MS", 1, 1, &Drip, "Leaves MS milliseconds more between two bytes; 0 ends it.",
     "drip 50"},
    {"defer", "N", 1, 1, &Defer,
     "Empties the next N replies that carry something; later polls bring their content.",
     "defer 1"},
};

}  // namespace

std::span<const ConsoleCommand> FaultConsoleCommands() {
    return kCommands;
}

}  // namespace zelvar::sim
