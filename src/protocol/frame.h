// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "protocol/command.h"

namespace zelvar {

// A frame, in both directions: a header with bit 7 clear, n data bytes that each carry a 7-bit
// value with bit 7 set, and a checksum with bit 7 set that makes the header and the low 7 bits of
// all other bytes add up to a multiple of 128.

/// Header, data bytes and checksum.
constexpr std::size_t kMaxFrameBytes = 1 + kMaxDataBytes + 1;

constexpr std::uint8_t kHeaderCountMask = 0x07;
/// Always set in a header.
constexpr std::uint8_t kHeaderMark = 0x08;
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

/// The bytes of a frame as they stand on the wire.
class FrameBytes {
  public:
    /// Adds a byte; there must be fewer than `kMaxFrameBytes`.
    void Append(std::uint8_t byte) { bytes_[size_++] = byte; }
    void Clear() { size_ = 0; }

    std::size_t size() const { return size_; }
    std::uint8_t operator[](std::size_t index) const { return bytes_[index]; }
    const std::uint8_t* begin() const { return bytes_.data(); }
    const std::uint8_t* end() const { return bytes_.data() + size_; }
    std::span<const std::uint8_t> View() const { return {bytes_.data(), size_}; }

  private:
    std::array<std::uint8_t, kMaxFrameBytes> bytes_{};
    std::size_t size_ = 0;
};

struct EncodedFrame {
    FrameBytes bytes;
    /// False when a value did not fit: the bytes end before it.
    bool isWhole = false;
};

EncodedFrame EncodeFrame(const Command& command, bool stop, bool toggle);

/// Puts a received frame together byte by byte. A header starts it again at any time; other bytes
/// before the first header are ignored.
class FrameReader {
  public:
    /// @return whether the frame is complete with this byte; then only `Frame` may follow
    bool Push(std::uint8_t byte);

    const FrameBytes& Frame() const { return frame_; }

  private:
    FrameBytes frame_;
};

/// @return whether the checksum of a complete frame fits
bool IsSumRight(const FrameBytes& frame);

}  // namespace zelvar
