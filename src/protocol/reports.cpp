// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/reports.h"

namespace zelvar {

OvercurrentReport ReadOvercurrentReport(const Reply& reply) {
    return {(reply[1] & 0x01) * kPayloadRange + reply[2], (reply[1] & 0x02) != 0};
}

BlockSpeedReport ReadBlockSpeedReport(const Reply& reply) {
    return {(reply[1] & 0x01) * kPayloadRange + reply[2], reply[3] & 0x3F, (reply[3] & 0x40) != 0};
}

FeedbackReport ReadFeedbackReport(const Reply& reply) {
    return {(reply[1] & 0x0F) * kPayloadRange + reply[2], (reply[1] & 0x10) != 0};
}

}  // namespace zelvar
