// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

namespace zelvar::sim {

/// Data bytes one frame can carry: its header counts them in three bits.
inline constexpr std::size_t kMaxDataBytes = 7;
/// The bytes of the longest frame; header and checksum come with the data.
inline constexpr std::size_t kMaxFrameBytes = kMaxDataBytes + 2;

/// Data values have seven bits.
inline constexpr int kPayloadRange = 128;
inline constexpr std::uint8_t kValueMask = kPayloadRange - 1;
/// On the line all bytes but the header have this bit.
inline constexpr std::uint8_t kDataBit = 0x80;
inline constexpr std::uint8_t kCountMask = 0x07;  // the number of data values, in a header

/// Header bits beside the count of data bytes.
inline constexpr std::uint8_t kHeaderMark = 0x08;      // set in every frame
inline constexpr std::uint8_t kHeaderHoldBit = 0x10;   // in replies: the system is held
inline constexpr std::uint8_t kHeaderStopBit = 0x20;   // in commands: stop is requested
inline constexpr std::uint8_t kHeaderFaultBit = 0x20;  // in replies: the system is in fault
inline constexpr std::uint8_t kHeaderToggleBit = 0x40;

/// The data values of a frame: 0 to 7 values of 0..127. Wider numbers lose their upper bits.
class Payload {
  public:
    constexpr Payload() = default;
    constexpr Payload(std::initializer_list<int> values) {
        for (const int value : values) {
            Append(value);
        }
    }

    /// Adds one value; an eighth one is dropped.
    constexpr void Append(int value) {
        if (count_ < kMaxDataBytes) {
            values_[count_] = static_cast<std::uint8_t>(value & kValueMask);
            ++count_;
        }
    }

    constexpr std::size_t size() const { return count_; }
    /// The value at `index` 0..6; 0 after the last one.
    constexpr int operator[](std::size_t index) const { return values_[index]; }
    bool operator==(const Payload&) const = default;

  private:
    std::array<std::uint8_t, kMaxDataBytes> values_{};
    std::size_t count_ = 0;
};

/// One command as it came in: `header` is the byte on the wire.
struct CommandFrame {
    std::uint8_t header = kHeaderMark;
    Payload data;

    bool Stop() const { return (header & kHeaderStopBit) != 0; }
    bool Toggle() const { return (header & kHeaderToggleBit) != 0; }
};

/// The byte that ends a frame whose other bytes are these.
std::uint8_t ChecksumByte(std::span<const std::uint8_t> bytes);

/// The bytes of a frame on the wire: header, data, checksum. `bits` are header bits set beside the
/// mark and the count.
std::vector<std::uint8_t> EncodeFrame(const Payload& data, std::uint8_t bits = 0);

/// Puts command frames together from single bytes.
class FrameParser {
  public:
    enum class Outcome {
        kNothing,        // inside a frame, or a byte outside any frame
        kFrame,          // complete and right: `frame()` holds it
        kBadChecksum,    // complete and wrong
        kUnknownHeader,  // the bytes up to the next header are skipped
    };

    Outcome Push(std::uint8_t byte);
    const CommandFrame& frame() const { return frame_; }

  private:
    CommandFrame frame_;
    unsigned sum_ = 0;
    std::size_t missing_ = 0;  // bytes still to come, including the checksum
};

}  // namespace zelvar::sim
