// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/console/state_table.h"
#include "sim/protocol/wire.h"
#include "sim/railway/simulated_clock.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// A reply before it becomes bytes.
struct Reply {
    Payload data;
    std::uint8_t headerBits = 0;

    bool operator==(const Reply&) const = default;
};

/// The central unit with the layout behind it: one right command frame in, at most one reply out.
class CentralUnit {
  public:
    /// @param seed of the little differences between engines; 0: none
    explicit CentralUnit(const Layout& layout, int timeFactor = kUsualTimeFactor,
                         std::uint32_t seed = 0)
        : state_(layout, seed), clock_(timeFactor) {}

    /// Whether the unit has a command of this shape; the others are only acknowledged.
    static bool IsKnown(const Payload& command);
    /// The command's name, as `state` lists it; empty for an unknown one.
    static std::string_view CommandName(const Payload& command);

    /// Carries the command out. No reply in transparent mode.
    std::optional<Reply> Handle(const CommandFrame& command, Time now);
    /// A frame whose checksum was wrong or whose header was none; it gets no reply.
    void NoteBrokenFrame() { ++brokenFrames_; }

    /// Lets time pass up to `now`, of the caller's clock; `Handle`, `Describe` and `Reboot` do so
    /// on their own.
    void Advance(Time now);
    /// Simulated seconds in each second from `now` on, 0 to `kMostTimeFactor`.
    void SetTimeFactor(int factor, Time now);
    int timeFactor() const { return clock_.factor(); }
    /// Lets `span` of simulated time pass at once, up to `kMostCatchUp`, whatever the time factor.
    void Run(Time span, Time now);
    /// Switched off and on: permanent settings hold again, transparent mode ends, and so do fault,
    /// hold, overcurrents and what waited to be reported. Two trains that still share a block are
    /// an overcurrent anew.
    void Reboot(Time now);
    /// The next `replies` replies that carry something are empty; a later poll brings the content.
    void DeferContent(int replies) { deferred_ = replies; }
    /// How many replies are still to come empty.
    int deferredReplies() const { return deferred_; }

    /// Several lines "name=value", each ended by a line feed.
    std::string Describe(Time now);
    /// The same for people, without what is not there.
    std::vector<TableSection> Sections(Time now);

    UnitState& state() { return state_; }

  private:
    void NoteHeader(const CommandFrame& command);

    UnitState state_;
    SimulatedClock clock_;
    std::map<std::string_view, std::uint64_t> carriedOut_;
    std::uint64_t frames_ = 0;
    std::uint64_t brokenFrames_ = 0;
    std::uint64_t unknownCommands_ = 0;
    std::uint64_t repeatedToggles_ = 0;
    std::uint64_t passedThrough_ = 0;
    int deferred_ = 0;
    std::optional<bool> lastToggle_;
};

}  // namespace zelvar::sim
