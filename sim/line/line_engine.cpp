// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/line_engine.h"

namespace zelvar::sim {

namespace {

constexpr std::uint8_t kFirstDataByte = 0x80;
constexpr std::size_t kLongestFrame = kMaxDataBytes + 2;  // header and checksum beside the data

}  // namespace

void LineEngine::SetBaud(int baud) {
    inbound_.SetBaud(baud);
    outbound_.SetBaud(baud);
}

void LineEngine::Receive(std::span<const std::uint8_t> bytes, Time now) {
    for (const std::uint8_t byte : bytes) {
        const Time received = inbound_.Pass(now);
        if (byte < kFirstDataByte || partial_.size() == kLongestFrame) {
            // A frame that was cut off, or bytes that belong to none.
            if (!partial_.empty()) {
                Trace(false, partial_);
            }
            partial_.clear();
        }
        partial_.push_back(byte);
        const FrameParser::Outcome outcome = parser_.Push(byte);
        if (outcome == FrameParser::Outcome::kNothing) {
            continue;
        }
        Trace(false, partial_);
        partial_.clear();
        if (outcome == FrameParser::Outcome::kFrame) {
            Answer(parser_.frame(), received);
        } else {
            unit_.NoteBrokenFrame();
        }
    }
}

void LineEngine::Answer(const CommandFrame& command, Time received) {
    const std::optional<Reply> reply = unit_.Handle(command, received);
    if (!reply) {
        return;
    }
    const std::optional<OutgoingReply> outgoing =
        faults_.Apply(EncodeFrame(reply->data, reply->headerBits));
    if (!outgoing) {
        return;
    }
    Trace(true, outgoing->bytes);
    Time handedOver = received + unitDelay_ + outgoing->delay;
    for (const std::uint8_t byte : outgoing->bytes) {
        const Time passed = outbound_.Pass(handedOver);
        waiting_.push_back({passed, byte});
        handedOver = passed + outgoing->byteGap;
    }
}

std::optional<Time> LineEngine::NextDue() const {
    return waiting_.empty() ? std::nullopt : std::optional(waiting_.front().due);
}

std::vector<std::uint8_t> LineEngine::TakeDue(Time now) {
    std::vector<std::uint8_t> due;
    while (!waiting_.empty() && waiting_.front().due <= now) {
        due.push_back(waiting_.front().byte);
        waiting_.pop_front();
    }
    return due;
}

void LineEngine::Reset() {
    waiting_.clear();
    partial_.clear();
    parser_ = FrameParser();
    inbound_.Restart();
    outbound_.Restart();
}

void LineEngine::Trace(bool sent, std::span<const std::uint8_t> bytes) const {
    if (trace_) {
        trace_(sent, bytes);
    }
}

}  // namespace zelvar::sim
