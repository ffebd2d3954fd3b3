// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/wire.h"

#include <numeric>

namespace zelvar::sim {

std::uint8_t ChecksumByte(std::span<const std::uint8_t> bytes) {
    const unsigned sum = std::accumulate(bytes.begin(), bytes.end(), 0U);
    // Two's complement in seven bits, so that everything adds up to a multiple of 128.
    return static_cast<std::uint8_t>(((~sum + 1U) & kValueMask) | kDataBit);
}

std::vector<std::uint8_t> EncodeFrame(const Payload& data, std::uint8_t bits) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(kMaxFrameBytes);
    const auto header = static_cast<std::uint8_t>(
        (kHeaderMark | data.size() | (bits & static_cast<unsigned>(~kCountMask))) & kValueMask);
    bytes.push_back(header);
    for (std::size_t index = 0; index < data.size(); ++index) {
        bytes.push_back(static_cast<std::uint8_t>(data[index] | kDataBit));
    }
    bytes.push_back(ChecksumByte(bytes));
    return bytes;
}

FrameParser::Outcome FrameParser::Push(std::uint8_t byte) {
    if ((byte & kDataBit) == 0) {
        // A header starts a frame at any time and drops an incomplete one.
        const bool known = (byte & kHeaderMark) != 0 && (byte & kHeaderHoldBit) == 0;
        frame_ = CommandFrame{byte, {}};
        sum_ = byte;
        missing_ = known ? (byte & kCountMask) + std::size_t{1} : 0;
        return known ? Outcome::kNothing : Outcome::kUnknownHeader;
    }
    if (missing_ == 0) {
        return Outcome::kNothing;
    }
    sum_ += byte & kValueMask;
    --missing_;
    if (missing_ > 0) {
        frame_.data.Append(byte);
        return Outcome::kNothing;
    }
    return (sum_ & kValueMask) == 0 ? Outcome::kFrame : Outcome::kBadChecksum;
}

}  // namespace zelvar::sim
