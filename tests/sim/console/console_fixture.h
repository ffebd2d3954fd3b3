// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "sim/console/console.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {

/// A console to type at, on a fixture with a unit and a clock.
template <typename Fixture>
class ConsoleFixture : public Fixture {
  protected:
    ConsoleResult Run(std::string_view line) {
        ConsoleContext context{this->unit_, faults_, this->now_};
        return RunConsoleLine(context, line);
    }
    std::string Answer(std::string_view line) { return Run(line).text; }

    Faults faults_;
};

}  // namespace zelvar::sim
