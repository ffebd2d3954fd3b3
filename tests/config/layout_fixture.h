// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace zelvar::testing {

using Values = std::vector<int>;
using Frames = std::vector<Values>;

// Status bytes of modules that are present.
constexpr int kVdFStatus = 8;
constexpr int kVd60Status = 9;
constexpr int kQlrxStatus = 10;
constexpr int kUnknownStatus = 15;
constexpr int kJsStatus = 8;

// Central unit types.
constexpr int kKBF = 1;
constexpr int kKBG = 3;
constexpr int kQlrxUnit = 10;

/// The main window with its port open, on a layout that answers the status request.
class LayoutFixture : public WindowFixture {
  protected:
    LayoutFixture();

    /// Presses Status with what `modules` and `unitType` say, and forgets what was sent.
    void RequestStatus();

    /// What went out between the two empty transactions of one or more commands.
    Frames Commands();

    /// Delivers a reply unasked, with a poll.
    void Receive(const Values& reply);

    /// Status byte by module address.
    std::map<int, int> modules;
    int unitType = kKBG;

  private:
    Bytes AnswerStatus(const SentFrame& frame);
};

}  // namespace zelvar::testing
