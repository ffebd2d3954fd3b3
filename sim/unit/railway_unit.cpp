// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/railway_unit.h"

#include <algorithm>

namespace zelvar::sim {

namespace {

/// A report of an input replaces one that still waits, whichever state that tells.
constexpr int kAnyFeedbackState = 0x6F;

void ReportInput(UnitState& state, int input, bool active) {
    const auto index = static_cast<std::size_t>(input);
    if (state.feedback.test(index) != active) {
        state.feedback.set(index, active);
        state.reports.PushLatest(FeedbackReport(input, active), kAnyFeedbackState);
    }
}

void ReportShared(UnitState& state, int block, bool shared) {
    const auto index = static_cast<std::size_t>(block);
    if (state.overcurrent.test(index) != shared) {
        state.overcurrent.set(index, shared);
        state.reports.Push(OvercurrentReport(block, shared));
    }
    state.fault = state.fault || shared;
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
        until = std::min<Time>(until, state.now + kMostCatchUp);
        const Time past = state.now % kRailwayStep;
        for (Time step = state.now - past + kRailwayStep; step <= until && Powered(state);
             step += kRailwayStep) {
            state.drive.Advance(step, state.reports);
            state.railway.Step(state.drive, state.accessories.points);
            ReportTrack(state);
        }
    }
    if (!Powered(state)) {
        state.railway.Halt();
    }
    state.drive.Advance(until, state.reports);
    state.now = until;
    return until;
}

}  // namespace zelvar::sim
