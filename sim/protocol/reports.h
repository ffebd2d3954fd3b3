// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sim/protocol/field.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// The reports that come without a request for them, and where their numbers stand.
inline constexpr int kOvercurrentCode = 0x30;
inline constexpr int kDetectedBit = 2;
inline constexpr int kBlockSpeedCode = 0x22;
inline constexpr int kFeedbackCode = 0x40;
inline constexpr int kActiveBit = 16;
inline constexpr Field kReportedInput = Wide(0, kActiveBit - 1);

constexpr Payload WideReport(int code, int number) {
    return {code + number / kPayloadRange, number % kPayloadRange};
}
constexpr Payload OvercurrentReport(int block, bool detected) {
    return WideReport(kOvercurrentCode + (detected ? kDetectedBit : 0), block);
}
/// `speed` is 0..63.
constexpr Payload BlockSpeedReport(int block, int speed, bool forward) {
    Payload report = WideReport(kBlockSpeedCode, block);
    report.Append(speed + (forward ? kForwardBit : 0));
    return report;
}
constexpr Payload FeedbackReport(int input, bool active) {
    return WideReport(kFeedbackCode + (active ? kActiveBit : 0), input);
}

}  // namespace zelvar::sim
