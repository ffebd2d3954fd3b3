// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/railway_unit.h"

#include <algorithm>
#include <cstdlib>

namespace zelvar::sim {

namespace {

void ReportInput(UnitState& state, int input, bool active) {
    if (state.feedback.test(input) != active) {
        state.feedback.set(input, active);
        // Replaces a waiting report of the input, whatever its state there.
        state.reports.PushLatest(FeedbackReport(input, active), kValueMask & ~kActiveBit);
    }
}

void ReportShared(UnitState& state, int block, bool shared) {
    if (state.overcurrent.test(block) != shared) {
        state.overcurrent.set(block, shared);
        state.reports.Push(OvercurrentReport(block, shared));
    }
    state.fault = state.fault || shared;
}

void AdvanceDrive(UnitState& state, Time until) {
    for (const int number : state.drive.Advance(until)) {
        const Block& block = state.drive.blocks()[number];
        state.reports.PushLatest(
            BlockSpeedReport(number, std::abs(block.speed.speed()), block.RunsForward()));
    }
}

}  // namespace

bool Powered(const UnitState& state) {
    return !state.fault && !state.stopRequested;
}

void ReportTrack(UnitState& state) {
    const TrackChanges changes = state.railway.TakeChanges();
    for (const auto& [input, active] : changes.inputs) {
        ReportInput(state, input, active);
    }
    for (const auto& [block, shared] : changes.shared) {
        ReportShared(state, block, shared);
    }
}

Time RunRailway(UnitState& state, Time until) {
    ReportTrack(state);
    if (Powered(state) && !state.railway.Resting(state.drive)) {
        until = std::min<Time>(until, state.now + kMaxCatchUp);
        const Time past = state.now % kRailwayStep;
        for (Time step = state.now - past + kRailwayStep; step <= until && Powered(state);
             step += kRailwayStep) {
            AdvanceDrive(state, step);
            state.railway.Step(state.drive, state.accessories.points);
            ReportTrack(state);
        }
    }
    if (!Powered(state)) {
        state.railway.Halt();
    }
    AdvanceDrive(state, until);
    state.now = until;
    return until;
}

}  // namespace zelvar::sim
