// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/poller.h"

namespace zelvar {

namespace {

constexpr int kFeedbackRequestCode = 96;
/// Payload values are 7 bits wide.
constexpr int kPayloadRange = 128;

}  // namespace

Command FeedbackRequest(int index) {
    return {2,
            {static_cast<std::uint8_t>(kFeedbackRequestCode + index / kPayloadRange),
             static_cast<std::uint8_t>(index % kPayloadRange)}};
}

void Poller::Timer1_Timer() {
    if (!port_.IsOpen()) {
        timer_.SetEnabled(false);
        return;
    }
    const int wanted = query_ ? query_() : kNoFeedbackWanted;
    link_.Transact(wanted == kNoFeedbackWanted ? kEmptyTransaction : FeedbackRequest(wanted));
}

}  // namespace zelvar
