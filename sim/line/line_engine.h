// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "sim/line/faults.h"
#include "sim/line/pacing.h"
#include "sim/protocol/wire.h"
#include "sim/unit/central_unit.h"

namespace zelvar::sim {

/// Joins the unit to a line: bytes in, bytes out at their times. Knows neither clock nor device.
class LineEngine {
  public:
    /// Gets every frame: a received one when it is complete or the next one cuts it off, a reply
    /// when it is queued.
    using TraceSink = std::function<void(bool sent, std::span<const std::uint8_t> bytes)>;

    /// `unitDelay` lies between a command's last bit and the first one of its reply.
    LineEngine(CentralUnit& unit, Faults& faults, Time unitDelay)
        : unit_(unit), faults_(faults), unitDelay_(unitDelay) {}

    /// Bits a second of both directions; 0: bytes take no time.
    void SetBaud(int baud);
    void SetTrace(TraceSink sink) { trace_ = std::move(sink); }

    void Receive(std::span<const std::uint8_t> bytes, Time now);
    /// When the next byte is to be written; nothing when none waits.
    std::optional<Time> NextDue() const;
    /// Takes the bytes whose time has come.
    std::vector<std::uint8_t> TakeDue(Time now);
    /// Forgets what waits and the beginning of a frame: the line is gone.
    void Reset();

  private:
    struct TimedByte {
        Time due;
        std::uint8_t byte;
    };

    void Answer(const CommandFrame& command, Time received);
    void Trace(bool sent, std::span<const std::uint8_t> bytes) const;

    CentralUnit& unit_;
    Faults& faults_;
    Time unitDelay_;
    FrameParser parser_;
    std::vector<std::uint8_t> partial_;  // the frame in progress, for the trace
    Pacer inbound_;
    Pacer outbound_;
    std::deque<TimedByte> waiting_;
    TraceSink trace_;
};

}  // namespace zelvar::sim
