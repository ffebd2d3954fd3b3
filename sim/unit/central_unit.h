// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "sim/protocol/wire.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// A reply before it becomes bytes.
struct Reply {
    Payload data;
    std::uint8_t headerBits = 0;

    bool operator==(const Reply&) const = default;
};

/// The central unit and its layout: one correct command frame in, at most one reply out.
class CentralUnit {
  public:
    /// @param seed of the small differences between engines; 0: none
    explicit CentralUnit(const Layout& layout, int timeFactor = kUsualTimeFactor,
                         std::uint32_t seed = 0)
        : state_(layout, seed) {
        state_.clock = SimulatedClock(timeFactor);
    }

    /// Whether the unit knows a command of this shape; others are only acknowledged.
    static bool IsKnown(const Payload& command);
    /// The command's name in its row; empty for an unknown command.
    static std::string_view CommandName(const Payload& command);

    /// Carries the command out. No reply in transparent mode.
    std::optional<Reply> Handle(const CommandFrame& command, Time now);
    /// A frame with a wrong checksum or header came; it gets no reply.
    void NoteBrokenFrame() { ++state_.frames.broken; }

    /// Lets time pass up to `now` of the caller's clock; `Handle` and `Reboot` do so by themselves.
    void Advance(Time now);
    /// Simulated seconds in each second from `now` on, 0 to `kMaxTimeFactor`.
    void SetTimeFactor(int factor, Time now);
    int timeFactor() const { return state_.clock.factor(); }
    /// Lets `span` of simulated time pass at once, up to `kMaxCatchUp`, whatever the time factor.
    void Run(Time span, Time now);
    /// Off and on again: the permanent settings become active, transparent mode ends, and so do
    /// fault, hold, overcurrents and waiting reports. Two trains that still share a block are an
    /// overcurrent again.
    void Reboot(Time now);
    /// Empties the next `replies` replies that have content; later polls bring it.
    void DeferContent(int replies) { deferred_ = replies; }
    /// How many replies are still to come empty.
    int deferredReplies() const { return deferred_; }

    UnitState& state() { return state_; }

  private:
    void NoteHeader(const CommandFrame& command);

    UnitState state_;
    int deferred_ = 0;
    std::optional<bool> lastToggle_;
};

}  // namespace zelvar::sim
