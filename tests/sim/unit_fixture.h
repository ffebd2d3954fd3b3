// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "sim/console/state_dump.h"
#include "sim/test_layouts.h"
#include "sim/unit/central_unit.h"

namespace zelvar::sim {

/// Lets a failed comparison show the values.
inline void PrintTo(const Payload& data, std::ostream* out) {
    *out << '{';
    for (std::size_t index = 0; index < data.size(); ++index) {
        *out << (index == 0 ? "" : ", ") << data[index];
    }
    *out << '}';
}

/// A unit to talk to, with a clock that the test moves.
class UnitFixture : public testing::Test {
  protected:
    UnitFixture() : unit_(MixedLayout()) {}

    std::optional<Reply> Send(const Payload& data, std::uint8_t bits = 0) {
        toggle_ = toggle_ == 0 ? kHeaderToggleBit : std::uint8_t{0};
        const auto header = static_cast<std::uint8_t>(kHeaderMark | data.size() | bits | toggle_);
        return unit_.Handle({header, data}, now_);
    }
    /// The data of the reply; the test fails without one.
    Payload Ask(const Payload& data) {
        const std::optional<Reply> reply = Send(data);
        EXPECT_TRUE(reply.has_value());
        return reply ? reply->data : Payload{};
    }
    Payload Poll() { return Ask({}); }
    /// What the next polls bring until one comes back empty.
    std::vector<Payload> PollAll() {
        std::vector<Payload> all;
        for (Payload data = Poll(); data.size() > 0; data = Poll()) {
            all.push_back(data);
        }
        return all;
    }
    void Wait(std::chrono::milliseconds time) { now_ += time; }

    /// What the listing says of `name`; "none" when it does not mention it.
    std::string Listed(const std::string& name) {
        unit_.Advance(now_);
        std::istringstream lines(StateDump(unit_.state()));
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(name + "=")) {
                return line.substr(name.size() + 1);
            }
        }
        return "none";
    }

    CentralUnit unit_;
    Time now_{0};

  private:
    std::uint8_t toggle_ = 0;
};

}  // namespace zelvar::sim
