// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/poller.h"

#include "protocol/status.h"

namespace zelvar {

void Poller::Timer1_Timer() {
    if (!port_.IsOpen()) {
        timer_.SetEnabled(false);
        return;
    }
    const int wanted = query_ ? query_() : kNoFeedbackWanted;
    link_.Transact(wanted == kNoFeedbackWanted ? kEmptyTransaction : FeedbackRequest(wanted));
}

}  // namespace zelvar
