// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/wire.h"

namespace zelvar::sim {

namespace {

constexpr std::uint8_t kDataBit = 0x80;  // tells data and checksum from headers
constexpr std::uint8_t kValueMask = 0x7F;
constexpr std::uint8_t kCountMask = 0x07;

}  // namespace

Payload::Payload(std::initializer_list<int> values) {
    for (const int value : values) {
        Append(value);
    }
}

void Payload::Append(int value) {
    if (count_ < kMaxDataBytes) {
        values_[count_] = static_cast<std::uint8_t>(value & kValueMask);
        ++count_;
    }
}

std::vector<std::uint8_t> EncodeFrame(const Payload& data, std::uint8_t bits) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(data.size() + 2);
    const auto header = static_cast<std::uint8_t>(
        (kHeaderMark | data.size() | (bits & static_cast<unsigned>(~kCountMask))) & kValueMask);
    bytes.push_back(header);
    unsigned sum = header;
    for (std::size_t index = 0; index < data.size(); ++index) {
        sum += static_cast<unsigned>(data[index]);
        bytes.push_back(static_cast<std::uint8_t>(data[index] | kDataBit));
    }
    // Two's complement in seven bits, so that everything adds up to a multiple of 128.
    bytes.push_back(static_cast<std::uint8_t>(((~sum + 1U) & kValueMask) | kDataBit));
    return bytes;
}

FrameParser::Outcome FrameParser::Push(std::uint8_t byte) {
    if ((byte & kDataBit) == 0) {
        // A header starts a frame at any time; what was there of an earlier one is lost.
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
