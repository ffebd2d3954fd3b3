// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/app/trace.h"

#include <utility>

#include "sim/protocol/wire.h"

namespace zelvar::sim {

namespace {

bool IsEmptyFrame(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t kHeaderAndChecksum = 2;
    return bytes.size() == kHeaderAndChecksum;
}

}  // namespace

std::string Trace::Frame(std::string_view time, bool sent, std::span<const std::uint8_t> bytes) {
    constexpr int kReplyStates = 0x100;  // beside the bits of the command, one of which is the same
    const std::string meaning = sent ? explainer_.Reply(bytes) : explainer_.Command(bytes);
    const std::string line = TraceLine(time, sent, bytes, meaning) + "\n";
    std::string lines = std::exchange(waiting_, {});
    if (!sent) {
        commandState_ = bytes.front() & kHeaderStopBit;
        if (polls_ == Polls::kWithoutEmpty && IsEmptyFrame(bytes)) {
            waiting_ = line;
            return lines;  // of a poll before it that got no answer
        }
        return lines + line;
    }
    const int state =
        commandState_ + kReplyStates * (bytes.front() & (kHeaderFaultBit | kHeaderHoldBit));
    if (!lines.empty() && IsEmptyFrame(bytes) && state == shownState_) {
        return {};
    }
    shownState_ = state;
    return lines + line;
}

}  // namespace zelvar::sim
