// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/frame.h"

#include <algorithm>
#include <numeric>

namespace zelvar {

namespace {

constexpr int kLargestByte = 255;
/// The running sum is cut only when it exceeds this; at exactly 256 it stays.
constexpr int kSumLimit = 256;

}  // namespace

EncodedFrame EncodeFrame(const Command& command, bool stop, bool toggle) {
    EncodedFrame frame;
    // A count above 7 spills into bit 4 of the header, and seven data bytes are sent.
    const int header =
        command.count + kHeaderMark + (stop ? kHeaderStop : 0) + (toggle ? kHeaderToggle : 0);
    if (header > kLargestByte) {
        return frame;
    }
    frame.bytes.Append(static_cast<std::uint8_t>(header));
    int sum = header;
    const std::size_t sent = std::min<std::size_t>(command.count, kMaxDataBytes);
    for (std::size_t i = 0; i < sent; ++i) {
        const int byte = command.values[i] + kNotHeader;
        if (byte > kLargestByte) {
            return frame;
        }
        sum += byte;
        if (sum > kSumLimit) {
            sum -= kSumLimit;
        }
        frame.bytes.Append(static_cast<std::uint8_t>(byte));
    }
    int checksum = kSumLimit - sum;
    if (checksum < kNotHeader) {
        checksum += kNotHeader;
    }
    frame.bytes.Append(static_cast<std::uint8_t>(checksum));
    frame.isWhole = true;
    return frame;
}

bool FrameReader::Push(std::uint8_t byte) {
    if (byte < kNotHeader) {
        frame_.Clear();
    } else if (frame_.size() == 0) {
        return false;
    }
    frame_.Append(byte);
    constexpr std::size_t kHeaderAndChecksum = 2;
    return frame_.size() == (frame_[0] & kHeaderCountMask) + kHeaderAndChecksum;
}

bool IsSumRight(const FrameBytes& frame) {
    return (std::accumulate(frame.begin(), frame.end(), 0) & kPayloadMask) == 0;
}

}  // namespace zelvar
