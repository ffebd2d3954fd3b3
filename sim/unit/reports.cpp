// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/reports.h"

#include <algorithm>

namespace zelvar::sim {

namespace {

constexpr int kOvercurrentCode = 0x30;
constexpr int kOvercurrentDetected = 2;
constexpr int kBlockSpeedCode = 0x22;
constexpr int kForwardBit = 64;
constexpr int kFeedbackCode = 0x40;
constexpr int kFeedbackActive = 16;

}  // namespace

void ReportQueue::Push(const Payload& data, int polls) {
    if (entries_.size() == kMaxPending) {
        entries_.pop_front();
    }
    entries_.push_back({data, polls});
}

void ReportQueue::PushLatest(const Payload& data, int firstMask) {
    const auto same = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.data.size() == data.size() &&
               (entry.data[0] & firstMask) == (data[0] & firstMask) && entry.data[1] == data[1];
    });
    if (same != entries_.end()) {
        same->data = data;
    } else {
        Push(data);
    }
}

std::optional<Payload> ReportQueue::NextForPoll() {
    for (Entry& entry : entries_) {
        --entry.polls;
    }
    const auto due = std::find_if(entries_.begin(), entries_.end(),
                                  [](const Entry& entry) { return entry.polls <= 0; });
    if (due == entries_.end()) {
        return std::nullopt;
    }
    const Payload data = due->data;
    entries_.erase(due);
    return data;
}

Payload OvercurrentReport(int block, bool detected) {
    return {kOvercurrentCode + (detected ? kOvercurrentDetected : 0) + block / 128, block % 128};
}

Payload BlockSpeedReport(int block, int speed, bool forward) {
    return {kBlockSpeedCode + block / 128, block % 128, speed + (forward ? kForwardBit : 0)};
}

Payload FeedbackReport(int input, bool active) {
    return {kFeedbackCode + (active ? kFeedbackActive : 0) + input / 128, input % 128};
}

}  // namespace zelvar::sim
