// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/reports.h"

#include <algorithm>

namespace zelvar::sim {

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

}  // namespace zelvar::sim
