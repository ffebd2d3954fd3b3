// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/central_unit.h"

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
    ++state_.frames.received;
    state_.stopRequested = command.Stop();
    if (lastToggle_ == command.Toggle()) {
        ++state_.frames.repeatedToggles;
    }
    lastToggle_ = command.Toggle();
}

void CentralUnit::Advance(Time now) {
    const Time simulated = state_.clock.At(now);
    if (RunRailway(state_, simulated) < simulated) {
        // The last call was so long ago that the rest of that time is dropped.
        state_.clock.GoOn(now, state_.now, state_.clock.factor());
    }
}

void CentralUnit::SetTimeFactor(int factor, Time now) {
    Advance(now);
    state_.clock.GoOn(now, state_.now, factor);
}

void CentralUnit::Run(Time span, Time now) {
    Advance(now);
    RunRailway(state_, state_.now + span);
    state_.clock.GoOn(now, state_.now, state_.clock.factor());
}

std::optional<Reply> CentralUnit::Handle(const CommandFrame& command, Time now) {
    Advance(now);
    if (state_.transparent) {
        ++state_.frames.passedThrough;
        return std::nullopt;
    }
    NoteHeader(command);
    Payload data;
    if (const CommandRow* row = FindCommand(command.data); row != nullptr) {
        ++state_.frames.commands[row->name];
        data = row->run(state_, command.data);
        // The next poll reports what took effect at once.
        Advance(now);
    } else {
        ++state_.frames.unknown;
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
    // Overcurrents set by hand end; two trains that still share a block cause theirs again.
    state_.overcurrent.reset();
    state_.railway.ForgetShared();
    deferred_ = 0;
    lastToggle_.reset();
}

}  // namespace zelvar::sim
