// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <cstdint>

#include "sim/console/console.h"

namespace zelvar::sim {

namespace {

std::vector<std::string> PresentModules(const UnitState& state) {
    std::vector<std::string> addresses;
    for (int address = 0; address < kModuleAddresses; ++address) {
        if (state.layout.At(address).Present()) {
            addresses.push_back(std::to_string(address));
        }
    }
    return addresses;
}

std::vector<std::string> PresentTractionUnits(const UnitState& state) {
    std::vector<std::string> lines;
    for (int line = 0; line < kTractionLines; ++line) {
        if (state.layout.At(LineAddress(line)).Present()) {
            lines.push_back(std::to_string(line));
        }
    }
    return lines;
}

constexpr Argument kBlock = Number("B", 0, kBlocks - 1);
constexpr Argument kAddress = Number("ADDRESS", 0, kModuleAddresses - 1, &PresentModules);
constexpr Argument kTractionUnit = Number("M", 0, kTractionLines - 1, &PresentTractionUnits);
constexpr Argument kValue = Number("V", 0, 127);  // seven bits on the line
constexpr Word kDirections[] = {{"forward", 1}, {"reverse", 0}};
constexpr Word kInputStates[] = {{"0", 0}, {"1", 1}};

/// Of an absent module the command changed what the module has when it appears.
ConsoleResult DoneAt(const UnitState& state, int address) {
    if (state.layout.At(address).Present()) {
        return {};
    }
    return {"ok, but there is no module at address " + std::to_string(address),
            ConsoleAction::kNone};
}

ConsoleResult SetOvercurrent(UnitState& state, const Values& values, bool detected) {
    state.overcurrent.set(values[0], detected);
    state.reports.Push(OvercurrentReport(values[0], detected));
    return {};
}

ConsoleResult Overcurrent(ConsoleContext& context, const Values& values) {
    return SetOvercurrent(context.unit.state(), values, true);
}

ConsoleResult Release(ConsoleContext& context, const Values& values) {
    return SetOvercurrent(context.unit.state(), values, false);
}

ConsoleResult Speed(ConsoleContext& context, const Values& values) {
    UnitState& state = context.unit.state();
    const int block = values[0];
    const int speed = values[1];
    const bool forward = values[2] != 0;
    state.drive.SetBlockSpeed(block, speed, forward, 0);
    context.unit.Advance(context.now);
    // The user asked for it, so it is reported even if nothing has changed.
    state.reports.PushLatest(BlockSpeedReport(block, speed, forward));
    return {};
}

ConsoleResult Feedback(ConsoleContext& context, const Values& values) {
    UnitState& state = context.unit.state();
    if (state.feedback.test(values[0]) != (values[1] != 0)) {
        state.feedback.flip(values[0]);
        state.reports.Push(FeedbackReport(values[0], values[1] != 0));
    }
    return {};
}

ConsoleResult Fault(ConsoleContext& context, const Values& values) {
    context.unit.state().fault = values[0] != 0;
    return {};
}

ConsoleResult Hold(ConsoleContext& context, const Values& values) {
    context.unit.state().hold = values[0] != 0;
    return {};
}

ConsoleResult ModuleAbsent(ConsoleContext& context, const Values& values) {
    ModuleSlot& slot = context.unit.state().layout.At(values[0]);
    const ConsoleResult result = DoneAt(context.unit.state(), values[0]);
    slot.status = kAbsentStatus;
    return result;
}

ConsoleResult ModuleStatus(ConsoleContext& context, const Values& values) {
    context.unit.state().layout.At(values[0]).status = static_cast<std::uint8_t>(values[1]);
    return {};
}

ConsoleResult MasterSlave(ConsoleContext& context, const Values& values) {
    UnitState& state = context.unit.state();
    auto& memory = state.memories.traction[values[0]];
    for (const bool permanent : {false, true}) {
        memory.Part(permanent)[kMasterSlaveParameter] = static_cast<std::uint8_t>(values[1]);
    }
    return DoneAt(state, LineAddress(values[0]));
}

ConsoleResult Clock(ConsoleContext& context, const Values& values) {
    UnitState& state = context.unit.state();
    const int address = LineAddress(values[0]);
    state.layout.At(address).clock = static_cast<std::uint8_t>(values[1]);
    return DoneAt(state, address);
}

ConsoleResult MuteModule(ConsoleContext& context, const Values& values) {
    UnitState& state = context.unit.state();
    state.muted.set(values[0], values[1] != 0);
    return DoneAt(state, values[0]);
}

ConsoleResult AnswerDelay(ConsoleContext& context, const Values& values) {
    context.unit.state().answerDelay = values[0];
    return {};
}

ConsoleResult Reboot(ConsoleContext& context, const Values&) {
    context.unit.Reboot(context.now);
    return {};
}

constexpr ConsoleCommand kCommands[] = {
    {"overcurrent",
     {kBlock},
     &Overcurrent,
     "Reports an overcurrent in block B; \"fault on\" puts the system in fault.",
     "overcurrent 5"},
    {"release", {kBlock}, &Release, "Reports the end of the overcurrent in block B.", "release 5"},
    {"speed",
     {kBlock, Number("S", 0, 63), Choice(kDirections)},
     &Speed,
     "Sets and reports speed S of block B.",
     "speed 5 12 forward"},
    {"feedback",
     {Number("I", 0, kFeedbackInputs - 1), Choice(kInputStates)},
     &Feedback,
     "Sets feedback input I and reports it when it changes.",
     "feedback 200 1"},
    {"fault", {Choice(kOnOff)}, &Fault, "Puts the system in fault, or ends the fault.", "fault on"},
    {"hold", {Choice(kOnOff)}, &Hold, "Holds the system, or lets it go on.", "hold on"},
    {"module",
     {kAddress, Literal("absent")},
     &ModuleAbsent,
     "Takes the module at ADDRESS away.",
     "module 32 absent"},
    {"module",
     {kAddress, Literal("status"), Number("BYTE", 0, 127)},
     &ModuleStatus,
     "Makes the module at ADDRESS report status BYTE; an absent one appears.",
     "module 32 status 0x08"},
    {"ms",
     {kTractionUnit, kValue},
     &MasterSlave,
     "Sets the master/slave mode of traction unit M in both memories: 0 auto, 1 master, 2 slave.",
     "ms 1 2"},
    {"clock",
     {kTractionUnit, kValue},
     &Clock,
     "Sets the clock state of traction unit M: 0 good, 1 none, 2 bad, 4 degraded.",
     "clock 1 4"},
    {"mute-module",
     {kAddress, Choice(kOnOff)},
     &MuteModule,
     "Keeps the module at ADDRESS from answering requests for its settings.",
     "mute-module 64 on"},
    {"answer-delay",
     {Number("N", 0, 10'000)},  // minutes of polling
     &AnswerDelay,
     "Sends a module's answer with the N-th poll after the request; 0: as the reply itself.",
     "answer-delay 3"},
    {"reboot",
     {},
     &Reboot,
     "Restarts the unit: permanent settings hold again, transparent mode ends.",
     "reboot"},
};

}  // namespace

ConsoleGroup LayoutConsoleCommands() {
    return {"Reports, states and modules", kCommands};
}

}  // namespace zelvar::sim
