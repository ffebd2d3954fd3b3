// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zelvar {

// A frame, in both directions: a header with bit 7 clear, n data bytes that each carry a 7-bit
// value with bit 7 set, and a checksum with bit 7 set that makes the header and the low 7 bits of
// all other bytes add up to a multiple of 128.

constexpr std::size_t kMaxDataBytes = 7;
/// Header, data bytes and checksum.
constexpr std::size_t kMaxFrameBytes = 1 + kMaxDataBytes + 1;

constexpr std::uint8_t kHeaderCountMask = 0x07;
/// Always set in a header.
constexpr std::uint8_t kHeaderMark = 0x08;
/// The low nibble of a header: the mark and the number of data bytes.
constexpr std::uint8_t kHeaderKindMask = 0x0F;
/// Received only: the unit holds the layout.
constexpr std::uint8_t kHeaderHold = 0x10;
/// Sent: the Stop request.
constexpr std::uint8_t kHeaderStop = 0x20;
/// Received in the same place.
constexpr std::uint8_t kHeaderFault = 0x20;
/// Sent: flips with every frame.
constexpr std::uint8_t kHeaderToggle = 0x40;

/// Set in every byte that is not a header.
constexpr std::uint8_t kNotHeader = 0x80;
/// The payload of a byte that is not a header.
constexpr std::uint8_t kPayloadMask = 0x7F;

/// What `Transact` sends: the number of data bytes and their values.
struct Command {
    /// 0..7
    std::uint8_t count = 0;
    /// 0..127 each; the values from `count` on are not sent.
    std::array<std::uint8_t, kMaxDataBytes> values{};

    bool operator==(const Command&) const = default;
};

/// The command without data, with which the unit is asked for news.
constexpr Command kEmptyTransaction{};

/// Ends the unit's fault state.
constexpr Command kResetFault{2, {1, 0}};

/// The last valid reply: index 0 the header as received, index k the k-th data value with bit 7
/// cleared, then the checksum with bit 7 cleared; 0 elsewhere.
using ReplyBuffer = std::array<std::uint8_t, 10>;

/// A blank and two upper-case hexadecimal digits, as every byte stands in the message log.
std::string FormatHexByte(std::uint8_t byte);

}  // namespace zelvar
