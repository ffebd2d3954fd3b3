// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console.h"

namespace zelvar::sim {

namespace {

constexpr int kMostBlock = kBlocks - 1;
constexpr int kMostInput = kFeedbackInputs - 1;
constexpr int kMostSpeed = 63;
constexpr int kMostValue = 127;     // seven bits on the line
constexpr int kMostPolls = 10'000;  // minutes of polling

ConsoleResult SetOvercurrent(ConsoleContext& context, ConsoleArguments arguments, bool detected) {
    const std::optional<int> block = ParseInt(arguments[0], 0, kMostBlock);
    if (!block) {
        return RangeError("B", 0, kMostBlock);
    }
    UnitState& state = context.unit.state();
    state.overcurrent.set(static_cast<std::size_t>(*block), detected);
    state.reports.Push(OvercurrentReport(*block, detected));
    return Ok();
}

ConsoleResult Overcurrent(ConsoleContext& context, ConsoleArguments arguments) {
    return SetOvercurrent(context, arguments, true);
}

ConsoleResult Release(ConsoleContext& context, ConsoleArguments arguments) {
    return SetOvercurrent(context, arguments, false);
}

ConsoleResult Speed(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> block = ParseInt(arguments[0], 0, kMostBlock);
    const std::optional<int> speed = ParseInt(arguments[1], 0, kMostSpeed);
    const bool forward = arguments[2] == "forward";
    if (!block) {
        return RangeError("B", 0, kMostBlock);
    }
    if (!speed) {
        return RangeError("S", 0, kMostSpeed);
    }
    if (!forward && arguments[2] != "reverse") {
        return Error("forward or reverse expected");
    }
    UnitState& state = context.unit.state();
    context.unit.Advance(context.now);
    state.drive.SetBlockSpeed(*block, *speed, forward, 0);
    context.unit.Advance(context.now);
    // Asked for, so it is reported even when nothing has changed.
    state.reports.PushLatest(BlockSpeedReport(*block, *speed, forward));
    return Ok();
}

ConsoleResult Feedback(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> input = ParseInt(arguments[0], 0, kMostInput);
    const std::optional<int> active = ParseInt(arguments[1], 0, 1);
    if (!input) {
        return RangeError("I", 0, kMostInput);
    }
    if (!active) {
        return Error("0 or 1 expected");
    }
    UnitState& state = context.unit.state();
    const auto index = static_cast<std::size_t>(*input);
    if (state.feedback.test(index) != (*active == 1)) {
        state.feedback.flip(index);
        state.reports.Push(FeedbackReport(*input, *active == 1));
    }
    return Ok();
}

ConsoleResult SetFlag(ConsoleArguments arguments, bool& flag) {
    const std::optional<bool> value = ParseSwitch(arguments[0]);
    if (!value) {
        return Error("on or off expected");
    }
    flag = *value;
    return Ok();
}

ConsoleResult Fault(ConsoleContext& context, ConsoleArguments arguments) {
    return SetFlag(arguments, context.unit.state().fault);
}

ConsoleResult Hold(ConsoleContext& context, ConsoleArguments arguments) {
    return SetFlag(arguments, context.unit.state().hold);
}

ConsoleResult Module(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> address = ParseInt(arguments[0], 0, kModuleAddresses - 1);
    if (!address) {
        return RangeError("ADDRESS", 0, kModuleAddresses - 1);
    }
    ModuleSlot& slot = context.unit.state().layout.At(*address);
    if (arguments[1] == "absent" && arguments.size() == 2) {
        slot.status = kAbsentStatus;
        return Ok();
    }
    if (arguments[1] != "status" || arguments.size() != 3) {
        return Error("absent or status BYTE expected");
    }
    const std::optional<int> status = ParseInt(arguments[2], 0, kMostValue);
    if (!status) {
        return RangeError("BYTE", 0, kMostValue);
    }
    slot.status = static_cast<std::uint8_t>(*status);
    return Ok();
}

ConsoleResult MasterSlave(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> line = ParseInt(arguments[0], 0, kTractionLines - 1);
    const std::optional<int> mode = ParseInt(arguments[1], 0, kMostValue);
    if (!line) {
        return RangeError("M", 0, kTractionLines - 1);
    }
    if (!mode) {
        return RangeError("V", 0, kMostValue);
    }
    auto& memory = context.unit.state().memories.traction[static_cast<std::size_t>(*line)];
    for (const bool permanent : {false, true}) {
        memory.Part(permanent)[kMasterSlaveParameter] = static_cast<std::uint8_t>(*mode);
    }
    return Ok();
}

ConsoleResult Clock(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> line = ParseInt(arguments[0], 0, kTractionLines - 1);
    const std::optional<int> clock = ParseInt(arguments[1], 0, kMostValue);
    if (!line) {
        return RangeError("M", 0, kTractionLines - 1);
    }
    if (!clock) {
        return RangeError("V", 0, kMostValue);
    }
    context.unit.state().layout.At(LineAddress(*line)).clock = static_cast<std::uint8_t>(*clock);
    return Ok();
}

ConsoleResult MuteModule(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> address = ParseInt(arguments[0], 0, kModuleAddresses - 1);
    const std::optional<bool> mute = ParseSwitch(arguments[1]);
    if (!address) {
        return RangeError("ADDRESS", 0, kModuleAddresses - 1);
    }
    if (!mute) {
        return Error("on or off expected");
    }
    context.unit.state().muted.set(static_cast<std::size_t>(*address), *mute);
    return Ok();
}

ConsoleResult AnswerDelay(ConsoleContext& context, ConsoleArguments arguments) {
    const std::optional<int> polls = ParseInt(arguments[0], 0, kMostPolls);
    if (!polls) {
        return RangeError("N", 0, kMostPolls);
    }
    context.unit.state().answerDelay = *polls;
    return Ok();
}

ConsoleResult Reboot(ConsoleContext& context, ConsoleArguments) {
    context.unit.Reboot(context.now);
    return Ok();
}

constexpr ConsoleCommand kCommands[] = {
    {"overcurrent", "B", 1, 1, &Overcurrent,
     "Only reports an overcurrent in block B (0..255); \"fault on\" puts the system in fault.",
     "overcurrent 5"},
    {"release", "B", 1, 1, &Release, "Reports the end of the overcurrent in block B (0..255).",
     "release 5"},
    {"speed", "B S forward|reverse", 3, 3, &Speed,
     "Sets and reports the speed S (0..63) of block B (0..255).", "speed 5 12 forward"},
    {"feedback", "I 0|1", 2, 2, &Feedback,
     "Sets feedback input I (0..2047) and reports it when it changes.", "feedback 200 1"},
    {"fault", "on|off", 1, 1, &Fault, "Puts the system in fault, or ends the fault.", "fault on"},
    {"hold", "on|off", 1, 1, &Hold, "Holds the system, or lets it go on.", "hold on"},
    {"module", "ADDRESS absent|status BYTE", 2, 3, &Module,
     "Takes the module at ADDRESS (0..127) away, or makes it report status BYTE (0..127).",
     "module 32 status 0x08"},
    {"ms", "M V", 2, 2, &MasterSlave,
     "Sets the master/slave mode V of traction unit M (0..63): 0 auto, 1 master, 2 slave.",
     "ms 1 2"},
    {"clock", "M V", 2, 2, &Clock,
     "Sets the clock state V of traction unit M (0..63): 0 good, 1 none, 2 bad, 4 degraded.",
     "clock 1 4"},
    {"mute-module", "ADDRESS on|off", 2, 2, &MuteModule,
     "Keeps the module at ADDRESS from answering requests for its settings.", "mute-module 64 on"},
    {"answer-delay", "N", 1, 1, &AnswerDelay,
     "Sends a module's answer with the N-th poll after the request; 0: as the reply itself.",
     "answer-delay 3"},
    {"reboot", "", 0, 0, &Reboot,
     "Starts the unit afresh: permanent settings hold again, transparent mode ends.", "reboot"},
};

}  // namespace

std::span<const ConsoleCommand> LayoutConsoleCommands() {
    return kCommands;
}

}  // namespace zelvar::sim
