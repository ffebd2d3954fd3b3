// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/central_unit.h"

#include <sstream>

#include "sim/console/state_listing.h"
#include "sim/unit/commands.h"
#include "sim/unit/railway_unit.h"

namespace zelvar::sim {

bool CentralUnit::IsKnown(const Payload& command) {
    return FindCommand(command) != nullptr;
}

std::string_view CentralUnit::CommandName(const Payload& command) {
    const CommandRow* row = FindCommand(command);
    return row == nullptr ? std::string_view() : row->name;
}

void CentralUnit::NoteHeader(const CommandFrame& command) {
    ++frames_;
    state_.stopRequested = command.Stop();
    if (lastToggle_ == command.Toggle()) {
        ++repeatedToggles_;
    }
    lastToggle_ = command.Toggle();
}

void CentralUnit::Advance(Time now) {
    const Time simulated = clock_.At(now);
    if (RunRailway(state_, simulated) < simulated) {
        // Nobody has looked for so long that the rest of that time is dropped.
        clock_.GoOn(now, state_.now, clock_.factor());
    }
}

void CentralUnit::SetTimeFactor(int factor, Time now) {
    Advance(now);
    clock_.GoOn(now, state_.now, factor);
}

void CentralUnit::Run(Time span, Time now) {
    Advance(now);
    RunRailway(state_, state_.now + span);
    clock_.GoOn(now, state_.now, clock_.factor());
}

std::optional<Reply> CentralUnit::Handle(const CommandFrame& command, Time now) {
    Advance(now);
    if (state_.transparent) {
        ++passedThrough_;
        return std::nullopt;
    }
    NoteHeader(command);
    Payload data;
    if (const CommandRow* row = FindCommand(command.data); row != nullptr) {
        ++carriedOut_[row->name];
        data = row->run(state_, command.data).value_or(Payload{});
        // What took effect at once is reported with the next poll.
        Advance(now);
    } else {
        ++unknownCommands_;
    }
    if (deferred_ > 0 && data.size() > 0) {
        --deferred_;
        state_.reports.Push(data);
        data = {};
    }
    const int bits = (state_.fault ? kHeaderFaultBit : 0) | (state_.hold ? kHeaderHoldBit : 0);
    return Reply{data, static_cast<std::uint8_t>(bits)};
}

void CentralUnit::Reboot(Time now) {
    Advance(now);
    state_.memories.Restart();
    state_.drive.Restart();
    state_.railway.Halt();
    state_.transparent = false;
    state_.fault = false;
    state_.hold = false;
    state_.stopRequested = false;
    state_.reports.Clear();
    // What was set by hand is gone; two trains that still share a block trip it anew.
    state_.overcurrent.reset();
    state_.railway.ForgetShared();
    deferred_ = 0;
    lastToggle_.reset();
}

std::string CentralUnit::Describe(Time now) {
    Advance(now);
    std::ostringstream out;
    ListUnit(out, state_);
    out << "time-factor=" << clock_.factor() << '\n'
        << "simulated-ms="
        << std::chrono::duration_cast<std::chrono::milliseconds>(state_.now).count() << '\n';
    out << "frames=" << frames_ << '\n'
        << "broken-frames=" << brokenFrames_ << '\n'
        << "passed-through=" << passedThrough_ << '\n'
        << "unknown-commands=" << unknownCommands_ << '\n'
        << "repeated-toggles=" << repeatedToggles_ << '\n';
    for (const auto& [name, times] : carriedOut_) {
        out << "command." << name << '=' << times << '\n';
    }
    ListDrive(out, state_);
    ListRailway(out, state_);
    ListMemories(out, state_);
    return out.str();
}

std::vector<TableSection> CentralUnit::Sections(Time now) {
    Advance(now);
    std::vector<TableSection> sections = StateSections(state_);
    if (!state_.railway.trains().empty()) {
        sections.push_back(
            {"Simulated time",
             {},
             {{"passed", std::to_string(state_.now / std::chrono::seconds(1)) + " s"},
              {"factor", std::to_string(clock_.factor())}}});
    }
    TableSection frames{"Frames", {}, {{"received", std::to_string(frames_)}}};
    const auto mention = [&](const char* what, std::uint64_t count) {
        if (count > 0) {
            frames.rows.push_back({what, std::to_string(count)});
        }
    };
    mention("broken", brokenFrames_);
    mention("passed through", passedThrough_);
    mention("unknown commands", unknownCommands_);
    mention("sent twice, by the toggle", repeatedToggles_);
    for (const auto& [name, times] : carriedOut_) {
        frames.rows.push_back({std::string(name), std::to_string(times)});
    }
    sections.push_back(frames);
    return sections;
}

}  // namespace zelvar::sim
