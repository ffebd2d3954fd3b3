// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "harness/program.h"
#include "harness/simulator.h"

namespace zelvar::e2e {

/// The boxes of the program that journeys meet.
BoxText NoResponseBox();
BoxText SelectPortBox();

/// The program at one end of a pseudo-terminal, the simulated unit at the other.
class Journey : public ::testing::Test {
  protected:
    /// Starts both. The unit is behind port 1, which is not open yet.
    void Start(const std::vector<std::string>& unitOptions = {});
    /// Starts both and opens port 1.
    void StartAndOpen(const std::vector<std::string>& unitOptions = {});
    /// Starts both, opens port 1 and makes one exchange: the program polls from there on.
    void StartAndPoll(const std::vector<std::string>& unitOptions = {});
    /// The next exchange works and the program polls again.
    void ExpectRecovery();
    /// Presses "Status" and waits for the view.
    void RequestStatus(const std::string& view = "dlgZelvarStatus44");
    void TearDown() override;

    int Frames() { return unit->Count("frames"); }
    ::testing::AssertionResult Polls();
    ::testing::AssertionResult DoesNotPoll();
    /// The program spends next to no time on a processor.
    ::testing::AssertionResult Rests();

    TempFolder folder;
    std::optional<Simulator> unit;
    std::optional<Program> program;
};

}  // namespace zelvar::e2e
