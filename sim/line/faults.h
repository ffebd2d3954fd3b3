// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvar::sim {

/// A counter of replies that a fault still hits.
class Remaining {
  public:
    void Set(int count) { count_ = count; }
    /// Hits every reply until `Set(0)`.
    void SetForever() { count_ = kForever; }
    /// Whether this reply is hit; counts it.
    bool Take();
    bool Active() const { return count_ != 0; }
    /// "next reply", "next 3 replies" or "every reply"; empty when no reply will be hit.
    std::string Describe() const;

  private:
    static constexpr int kForever = -1;
    int count_ = 0;
};

/// A reply as it will leave: its bytes, how much later than usual it starts, and the extra time
/// between two bytes.
struct OutgoingReply {
    std::vector<std::uint8_t> bytes;
    std::chrono::milliseconds delay{0};
    std::chrono::milliseconds byteGap{0};
};

/// A fault that will hit a reply: the console command that set it, and what it will do.
struct ArmedFault {
    std::string_view command;
    std::string effect;
};

/// What the unit does wrong on request. Everything is off at the start.
class Faults {
  public:
    /// Answers nothing from now on, or everything again.
    void SetSilent(bool silent);
    /// Answers the next `replies` frames, then nothing until `SetSilent(false)`.
    void SetSilentAfter(int replies) { answersLeft_ = replies; }
    /// Delays the next `replies` replies; all of them when the number is missing.
    void SetLate(std::chrono::milliseconds delay, std::optional<int> replies);
    void SetBadChecksums(int replies) { badChecksum_.Set(replies); }
    void SetShort(int replies) { short_.Set(replies); }
    void SetDouble(int replies) { double_.Set(replies); }
    /// Bytes sent before the next reply, after those that already wait for it.
    void AddStray(const std::vector<std::uint8_t>& bytes);
    /// Extra time between two bytes, beyond the line's own; 0 turns it off.
    void SetDrip(std::chrono::milliseconds gap) { drip_ = gap; }

    bool silent() const { return answersLeft_ == 0; }
    std::vector<ArmedFault> Armed() const;

    /// The reply with every fault that is due; nothing while silent. Each call counts one reply.
    std::optional<OutgoingReply> Apply(std::vector<std::uint8_t> reply);

  private:
    std::optional<int> answersLeft_;
    std::chrono::milliseconds lateBy_{0};
    Remaining late_;
    Remaining badChecksum_;
    Remaining short_;
    Remaining double_;
    std::vector<std::uint8_t> stray_;
    std::chrono::milliseconds drip_{0};
};

}  // namespace zelvar::sim
