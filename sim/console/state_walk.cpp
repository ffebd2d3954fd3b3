// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/state_walk.h"

#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <sstream>
#include <vector>

#include "sim/protocol/names.h"

namespace zelvar::sim {

namespace {

using Words = StateValue::Words;

// Values by the views that get them. Texts live as long as the statement that makes them.
StateValue Value(std::string_view name, std::int64_t number, Words tableWords = nullptr) {
    return {kAllViews, {name}, number, nullptr, tableWords};
}
StateValue Word(std::string_view name, std::int64_t number, Words words) {
    return {kAllViews, {name}, number, words, words};
}
StateValue Shown(std::string_view name, std::int64_t number, Words words = nullptr) {
    return {kDump | kTable, {name}, number, words, words};
}
StateValue Dump(std::string_view name, std::int64_t number) {
    return {kDump, {name}, number};
}
StateValue Dump(std::string_view name, std::string_view text) {
    return {kDump, {name}, 0, nullptr, nullptr, text, true};
}
StateValue Table(std::int64_t number, Words words = nullptr) {
    return {kTable, {}, number, nullptr, words};
}
StateValue Table(std::string_view text) {
    return {kTable, {}, 0, nullptr, nullptr, text, true};
}
StateValue Kept(std::string_view name, std::int64_t number) {
    return {kDump | kImage, {name}, number};
}
StateValue Image(std::string_view name, std::int64_t number) {
    return {kImage, {name}, number};
}

/// The numbers that are set, with a separator between them.
template <std::size_t count>
std::string Numbers(const std::bitset<count>& bits, std::string_view separator) {
    std::string text;
    for (std::size_t number = 0; number < count; ++number) {
        if (bits.test(number)) {
            text.append(text.empty() ? "" : separator).append(std::to_string(number));
        }
    }
    return text;
}

std::string Tenths(double value) {
    std::ostringstream out;
    out << std::fixed << std::setprecision(1) << std::abs(value);
    return out.str();
}

/// A row of a table that has a name and a text.
void Row(StateView& view, std::string_view table, std::string_view caption, std::string_view text) {
    view.Item(kTable, table, {}, {Table(caption), Table(text)});
}

/// A value of the unit, which has a row in its table if it has a caption.
void Single(StateView& view, unsigned views, const StateName& name, std::int64_t value,
            std::string_view caption = {}, Words words = nullptr) {
    view.Item(views | (caption.empty() ? 0U : kTable), "Unit", name,
              {Table(caption), Value({}, value, words)});
}

std::string ConditionOf(const UnitState& state) {
    std::string text = state.fault && state.hold ? "fault, held"
                       : state.fault             ? "fault"
                       : state.hold              ? "held"
                                                 : "OK";
    return text.append(state.stopRequested ? ", stop requested" : "")
        .append(state.transparent ? ", transparent until a reboot" : "");
}

void WalkUnit(StateView& view, const UnitState& state) {
    constexpr unsigned kKept = kDump | kImage;
    const UnitSettings& active = state.memories.unit.active;
    const UnitSettings& permanent = state.memories.unit.permanent;
    Single(view, kDump, {"unit-type"}, state.layout.unitType, "type", &UnitTypeName);
    Single(view, kDump, {"system-version"}, state.layout.systemVersion, "version", &VersionName);
    Single(view, kDump, {"protocol-version"}, state.layout.protocolVersion, "protocol",
           &VersionName);
    Row(view, "Unit", "state", ConditionOf(state));
    Single(view, kKept, {"fault"}, state.fault);
    Single(view, kKept, {"hold"}, state.hold);
    Single(view, kKept, {"stop"}, state.stopRequested);
    Single(view, kKept, {"transparent"}, state.transparent);
    Row(view, "Unit", "HFI level", std::to_string(state.hfiLevel));
    Single(view, kKept, {"configuration", "active"}, active.configuration, "configuration",
           &ConfigurationName);
    Single(view, kKept, {"device-mode", "active"}, active.deviceMode, "64-device mode");
    Single(view, kKept, {"configuration", "permanent"}, permanent.configuration);
    Single(view, kKept, {"device-mode", "permanent"}, permanent.deviceMode);
    Single(view, kKept, {"options"}, state.memories.options, "options", &OptionsName);
    Single(view, kDump, {"answer-delay"}, state.answerDelay);
    if (!view.IsOneOf(kDump | kTable)) {
        return;
    }
    const auto set = [&view](std::string_view name, const std::string& numbers) {
        view.Item(kDump, "Unit", {name}, {Dump({}, numbers)});
    };
    set("muted", Numbers(state.muted, ","));
    set("overcurrent", Numbers(state.overcurrent, ","));
    set("feedback", Numbers(state.feedback, ","));
    if (state.feedback.any()) {
        Row(view, "Feedback", "active inputs", Numbers(state.feedback, ", "));
    }
    Single(view, kDump, {"pending-reports"}, static_cast<std::int64_t>(state.reports.size()),
           "reports waiting");
    if (active.configuration != permanent.configuration) {
        Row(view, "Unit", "permanent configuration", ConfigurationName(permanent.configuration));
    }
    if (active.deviceMode != permanent.deviceMode) {
        Row(view, "Unit", "permanent 64-device mode", std::to_string(permanent.deviceMode));
    }
}

void WalkTime(StateView& view, const UnitState& state) {
    using namespace std::chrono;
    Single(view, kDump, {"time-factor"}, state.clock.factor());
    Single(view, kDump, {"simulated-ms"}, duration_cast<milliseconds>(state.now).count());
    if (!state.railway.trains().empty()) {
        Row(view, "Simulated time", "passed", std::to_string(state.now / seconds(1)) + " s");
        Row(view, "Simulated time", "factor", std::to_string(state.clock.factor()));
    }
}

void WalkFrames(StateView& view, const FrameCounts& frames) {
    const auto count = [&view](const StateName& name, std::string_view caption, bool always,
                               std::uint64_t times) {
        view.Item(kDump | (always || times > 0 ? kTable : 0U), "Frames", name,
                  {Table(caption), Shown({}, static_cast<std::int64_t>(times))});
    };
    count({"frames"}, "received", true, frames.received);
    count({"broken-frames"}, "broken", false, frames.broken);
    count({"passed-through"}, "passed through", false, frames.passedThrough);
    count({"unknown-commands"}, "unknown commands", false, frames.unknown);
    count({"repeated-toggles"}, "sent twice, by the toggle", false, frames.repeatedToggles);
    for (const auto& [name, times] : frames.commands) {
        count({"command", name}, name, true, times);
    }
}

void WalkModule(StateView& view, const UnitState& state, int address) {
    const ModuleSlot& slot = state.layout.At(address);
    const int line = LineAt(address);
    std::string type;
    std::string mode;
    std::string clock;
    if (line >= 0) {
        type = TractionTypeName(TypeIn(slot.status));
        mode = SettingValueName(kMasterSlaveParameter,
                                state.memories.traction[line].active[kMasterSlaveParameter]);
        clock = ClockName(slot.clock);
    }
    view.Item(slot.Present() ? kTable : 0U, "Modules", {},
              {Table(address), Table(address, &ModuleName), Table(type),
               Table(ModuleStateName(address, slot.status)), Table(slot.version, &VersionName),
               Table(mode), Table(clock), Table(state.muted.test(address) ? "muted" : "")});
}

void WalkBlock(StateView& view, const UnitState& state, int number) {
    const Block& block = state.drive.blocks()[number];
    const int speed = block.speed.speed();
    const int target = block.speed.target();
    const bool overcurrent = state.overcurrent.test(number);
    const bool listed = speed != 0 || target != 0 || block.light || !block.forward;
    view.Item(
        kImage | (listed ? kDump : 0U) | (listed || overcurrent ? kTable : 0U), "Blocks",
        {"block", {}, number},
        {Table(number), Shown("speed", std::abs(speed)),
         Table(speed == target ? "" : std::to_string(std::abs(target))),
         Shown("direction", block.RunsForward(), &DirectionName), Dump("target", std::abs(target)),
         Image("target", target), Image("forward", block.forward),
         Value("light", block.light, &OnOffName), Table(overcurrent ? "yes" : "")});
}

void WalkDcc(StateView& view, const DccDecoder& decoder, const DccLocomotive& locomotive) {
    const int functions = static_cast<int>(locomotive.functions.to_ulong());
    const std::string speed =
        std::to_string(locomotive.speed) + " of " + std::to_string(locomotive.steps);
    view.Item(
        kAllViews, "Locomotives",
        {decoder.longAddress ? "dcc.long" : "dcc.short", {}, decoder.address},
        {Table("DCC " + std::to_string(decoder.address) + (decoder.longAddress ? " (long)" : "")),
         Kept("steps", locomotive.steps), Kept("speed", locomotive.speed),
         Table(locomotive.emergencyStop ? "emergency stop" : speed),
         Shown("direction", locomotive.forward, &DirectionName),
         Image("forward", locomotive.forward), Value("block", locomotive.block),
         Kept("emergency-stop", locomotive.emergencyStop),
         Dump("functions", Numbers(locomotive.functions, "+")),
         Table(functions, [](int bits) { return DccFunctionsName(bits); }),
         Image("functions", functions)});
}

void WalkMcc(StateView& view, int decoder, const MccLocomotive& locomotive) {
    const int speed = locomotive.halfSteps.speed();
    const int target = locomotive.halfSteps.target();
    view.Item(
        kAllViews, "Locomotives", {"mcc", {}, decoder},
        {Table("MCC " + std::to_string(decoder)),
         Table(locomotive.emergencyStop ? "emergency stop" : HalfStepsName(speed)), Table(""),
         Table(""), Dump("half-steps", speed), Dump("target", target), Image("half-steps", target),
         Value("functions", locomotive.functions, &MccFunctionsName),
         Kept("emergency-stop", locomotive.emergencyStop)});
}

void WalkDrive(StateView& view, const UnitState& state) {
    Single(view, kDump | kImage, {"hfi"}, state.hfiLevel);
    for (int number = 0; number < kBlocks; ++number) {
        WalkBlock(view, state, number);
    }
    for (const auto& [blocks, inverted] : state.drive.links()) {
        const auto [first, second] = blocks;
        view.Item(kAllViews, "Links", {"link", {}, first, second},
                  {Table(std::to_string(first) + " and " + std::to_string(second)),
                   Table(inverted ? "inverted" : "same way"),
                   Dump({}, inverted ? "inverted" : "straight"), Image({}, inverted)});
    }
    for (const auto& [decoder, locomotive] : state.drive.dcc()) {
        WalkDcc(view, decoder, locomotive);
    }
    for (const auto& [decoder, locomotive] : state.drive.mcc()) {
        WalkMcc(view, decoder, locomotive);
    }
}

void WalkAccessories(StateView& view, const Accessories& accessories) {
    for (const auto& [device, thrown] : accessories.points) {
        view.Item(kAllViews, "Points", {"point", {}, device},
                  {Table(device), Word({}, thrown, &PositionName)});
    }
    for (const auto& [place, thrown] : accessories.modulePoints) {
        const auto [module, device] = place;
        view.Item(kAllViews, "Points", {"point-of-module", {}, module, device},
                  {Table("module " + std::to_string(module) + ", device " + std::to_string(device)),
                   Word({}, thrown, &PositionName)});
    }
    for (const auto& [place, aspect] : accessories.aspects) {
        const auto [module, pin] = place;
        view.Item(kAllViews, "Signals", {"aspect", {}, module, pin},
                  {Table(module), Table(pin), Value({}, aspect)});
    }
    for (const auto& [output, setting] : accessories.outputs) {
        view.Item(kAllViews, "Outputs", {"output", {}, output},
                  {Table(output), Value("instruction", setting.instruction),
                   Value("parameter", setting.parameter)});
    }
}

std::string ControlName(const Train& train) {
    if (train.control == TrainControl::kAnalog) {
        return "analog";
    }
    return (train.control == TrainControl::kDcc ? "DCC " : "MCC ") + std::to_string(train.address) +
           (train.longAddress ? " (long)" : "");
}

void WalkTrain(StateView& view, const TrackPlan& plan, const Railway::RunningTrain& train) {
    const TrackSection& section = plan.sections[train.path.sections().front().section];
    const std::string& name = train.described.name;
    const std::string position = Tenths(train.path.Position(plan));
    const std::string speed = Tenths(train.speed);
    view.Item(
        kDump | kTable, "Trains", {"train", name},
        {Table(name), Table(ControlName(train.described)), Dump("section", section.name),
         Table(section.name), Dump("position", position), Table(position + " cm"),
         Dump("speed", speed), Table(speed + " cm/s"),
         Shown("direction", !train.backwards, &DirectionName), Shown("block", section.block)});
}

void WalkRailway(StateView& view, const Railway& railway) {
    const TrackPlan& plan = railway.plan();
    for (const Railway::RunningTrain& train : railway.trains()) {
        WalkTrain(view, plan, train);
    }
    for (std::size_t index = 0; index < plan.sections.size(); ++index) {
        const TrackSection& section = plan.sections[index];
        std::string dumped;
        std::string shown;
        for (const std::size_t train : railway.occupants()[index]) {
            dumped.append(dumped.empty() ? "" : "+").append(plan.trains[train].name);
            shown.append(shown.empty() ? "" : ", ").append(plan.trains[train].name);
        }
        view.Item(kDump | kTable, "Track", {"section", section.name},
                  {Table(section.name), Dump("occupied", !dumped.empty()),
                   Shown("block", section.block), Table(Tenths(section.length) + " cm"),
                   section.feedback ? Shown("feedback", *section.feedback) : Table(""),
                   Dump("trains", dumped), Table(shown)});
    }
}

/// A setting of a module, which is in a table if it is not as it came to the layout.
template <typename Setting>
void Changed(StateView& view, int module, const std::string& name, const Setting& described,
             const Setting& active, const Setting& permanent,
             std::string (*words)(const Setting& setting, int parameter), int parameter = 0) {
    if (active != described || permanent != described) {
        view.Item(kTable, "Settings changed", {},
                  {Table(module, &ModuleName), Table(name), Table(words(active, parameter)),
                   Table(words(permanent, parameter))});
    }
}

void WalkTraction(StateView& view, const UnitState& state, int line) {
    const int address = LineAddress(line);
    const bool present = state.layout.At(address).Present();
    const Memory<TractionSettings>& memory = state.memories.traction[line];
    const auto walk = [&](std::string_view part, const TractionSettings& settings) {
        view.Begin(kImage | (present ? kDump : 0U), "Settings changed", {"traction", part, line});
        for (int parameter = 1; parameter < kTractionParameters; ++parameter) {
            view.Add(Dump({}, settings[parameter]));
            view.Add({kImage, {{}, {}, parameter}, settings[parameter]});
        }
    };
    walk("active", memory.active);
    walk("permanent", memory.permanent);
    if (present && view.IsOneOf(kDump | kTable)) {
        view.Item(kDump, "Settings changed", {"traction", "clock", line},
                  {Dump({}, state.layout.At(address).clock)});
        const TractionSettings described = DescribedTractionSettings(state.layout, line);
        for (int parameter = 1; parameter < kTractionParameters; ++parameter) {
            Changed<std::uint8_t>(
                view, address, SettingName(parameter), described[parameter],
                memory.active[parameter], memory.permanent[parameter],
                [](const std::uint8_t& value, int number) {
                    return SettingValueName(number, value);
                },
                parameter);
        }
    }
}

void WalkPoints(StateView& view, const UnitState& state, int position) {
    const int address = PointAddress(position);
    const bool present = state.layout.At(address).Present();
    const Memory<PointSettings>& memory = state.memories.points[position];
    const auto walk = [&](std::string_view part, const PointSettings& settings) {
        view.Begin(kImage | (present ? kDump : 0U), "Settings changed", {"points", part, position});
        view.Add(Kept("default", settings.defaultTime));
        for (int number = 0; number < kPointDevices; ++number) {
            const PointDevice& device = settings.devices[number];
            if (device != PointDevice{}) {
                const std::string text =
                    std::to_string(device.time) + '/' + std::to_string(device.power);
                view.Add({kDump, {{}, {}, number}, 0, nullptr, nullptr, text, true});
            }
            view.Add({kImage, {{}, "time", number}, device.time});
            view.Add({kImage, {{}, "power", number}, device.power});
        }
    };
    walk("active", memory.active);
    walk("permanent", memory.permanent);
    if (present && view.IsOneOf(kTable)) {
        const PointSettings factory = FactoryPointSettings();
        Changed<std::uint8_t>(view, address, "default time", factory.defaultTime,
                              memory.active.defaultTime, memory.permanent.defaultTime,
                              [](const std::uint8_t& time, int) { return TimeName(time); });
        for (int number = 0; number < kPointDevices; ++number) {
            Changed<PointDevice>(
                view, address, "device " + std::to_string(number), factory.devices[number],
                memory.active.devices[number], memory.permanent.devices[number],
                [](const PointDevice& device, int) {
                    return (device.time == 0 ? "default time" : TimeName(device.time)) +
                           ", power " + PowerName(device.power);
                });
        }
    }
}

}  // namespace

std::string StateName::Text() const {
    std::string text(group);
    for (const int number : {first, second}) {
        if (number != kNone) {
            text.append(text.empty() ? "" : ".").append(std::to_string(number));
        }
    }
    return text.append(part.empty() ? "" : ".").append(part);
}

void WalkState(const UnitState& state, StateView& view) {
    WalkUnit(view, state);
    WalkTime(view, state);
    WalkFrames(view, state.frames);
    for (int address = 0; address < kModuleAddresses && view.IsOneOf(kTable); ++address) {
        WalkModule(view, state, address);
    }
    WalkDrive(view, state);
    WalkAccessories(view, state.accessories);
    WalkRailway(view, state.railway);
    for (int line = 0; line < kTractionLines; ++line) {
        WalkTraction(view, state, line);
    }
    for (int position = 0; position < kPointModules; ++position) {
        WalkPoints(view, state, position);
    }
}

}  // namespace zelvar::sim
