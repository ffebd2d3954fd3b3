// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/faults.h"

namespace zelvar::sim {

namespace {

constexpr std::uint8_t kChecksumFlaw = 0x01;  // one bit wrong, still no header

}  // namespace

bool Remaining::Take() {
    if (count_ == 0) {
        return false;
    }
    if (count_ != kForever) {
        --count_;
    }
    return true;
}

void Faults::SetSilent(bool silent) {
    if (silent) {
        answersLeft_ = 0;
    } else {
        answersLeft_.reset();
    }
}

void Faults::SetLate(std::chrono::milliseconds delay, std::optional<int> replies) {
    lateBy_ = delay;
    if (delay.count() == 0) {
        late_.Set(0);
    } else if (replies) {
        late_.Set(*replies);
    } else {
        late_.SetForever();
    }
}

void Faults::AddStray(const std::vector<std::uint8_t>& bytes) {
    stray_.insert(stray_.end(), bytes.begin(), bytes.end());
}

std::optional<OutgoingReply> Faults::Apply(std::vector<std::uint8_t> reply) {
    if (answersLeft_) {
        if (*answersLeft_ == 0) {
            return std::nullopt;
        }
        --*answersLeft_;
    }
    if (badChecksum_.Take()) {
        reply.back() = static_cast<std::uint8_t>(reply.back() ^ kChecksumFlaw);
    }
    if (short_.Take()) {
        reply.pop_back();
    }
    OutgoingReply outgoing;
    outgoing.bytes.swap(stray_);
    const int copies = double_.Take() ? 2 : 1;
    for (int copy = 0; copy < copies; ++copy) {
        outgoing.bytes.insert(outgoing.bytes.end(), reply.begin(), reply.end());
    }
    outgoing.delay = late_.Take() ? lateBy_ : std::chrono::milliseconds(0);
    outgoing.byteGap = drip_;
    return outgoing;
}

}  // namespace zelvar::sim
