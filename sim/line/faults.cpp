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

std::string Remaining::Describe() const {
    if (count_ == kForever) {
        return "every reply";
    }
    if (count_ > 1) {
        return "next " + std::to_string(count_) + " replies";
    }
    return count_ == 1 ? "next reply" : "";
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

std::vector<ArmedFault> Faults::Armed() const {
    const auto inMs = [](std::chrono::milliseconds time) {
        return std::to_string(time.count()) + " ms";
    };
    std::vector<ArmedFault> armed;
    const auto add = [&](std::string_view command, const Remaining& replies,
                         const std::string& amount = "") {
        if (replies.Active()) {
            armed.push_back({command, amount + replies.Describe()});
        }
    };
    if (silent()) {
        armed.push_back({"silent", "no reply"});
    } else if (answersLeft_) {
        armed.push_back({"silent-after", std::to_string(*answersLeft_) + " more replies"});
    }
    add("late", late_, inMs(lateBy_) + ", ");
    add("bad-checksum", badChecksum_);
    add("short", short_);
    add("double", double_);
    if (!stray_.empty()) {
        armed.push_back({"stray", std::to_string(stray_.size()) + " bytes before the next reply"});
    }
    if (drip_.count() > 0) {
        armed.push_back({"drip", inMs(drip_) + " more between two bytes"});
    }
    return armed;
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
