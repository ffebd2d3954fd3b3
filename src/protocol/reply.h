// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "protocol/frame.h"

namespace zelvar {

/// A valid reply: a complete frame whose checksum fits.
class Reply {
  public:
    /// @param frame complete, with a checksum that fits
    explicit Reply(const FrameBytes& frame) : frame_(frame) {}

    /// The number of data values, 0..7.
    int Count() const { return frame_[0] & kHeaderCountMask; }

    /// The k-th data value, 0..127. @param k 1..`Count()`; 0 for any other
    int operator[](int k) const {
        return k >= 1 && k <= Count() ? frame_[static_cast<std::size_t>(k)] & kPayloadMask : 0;
    }

    /// The Hold bit (1) and the Fault bit (2).
    int StateBits() const { return (frame_[0] & (kHeaderFault | kHeaderHold)) / kHeaderHold; }
    bool IsFault() const { return (frame_[0] & kHeaderFault) != 0; }

    /// Whether the header carries the mark that every header should carry. The status request and
    /// the module report do without it, all other readers insist on it. This is intentional.
    bool HasMark() const { return (frame_[0] & kHeaderMark) != 0; }

    /// Whether the reply has that many values and begins with these.
    bool Is(int count, std::initializer_list<int> first) const;

    /// The frame as it was received.
    std::span<const std::uint8_t> Bytes() const { return frame_.View(); }

  private:
    FrameBytes frame_;
};

}  // namespace zelvar
