// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "status/status_request.h"

namespace zelvar::testing {

/// Records what a status request shows on its way.
class RecordingView : public StatusRequestView {
  public:
    /// @param now gives the number of frames that have been sent
    explicit RecordingView(std::function<std::size_t()> now = [] { return std::size_t{0}; })
        : now_(std::move(now)) {}

    void ShowStatus(const SystemStatus& status) override { shown.push_back(status); }
    void ShowCentralUnit(const CentralUnit& /*unit*/) override { Note("unit"); }
    void ListTractionModules(bool classic) override {
        Note(classic ? "classic traction" : "traction");
    }
    void ListPointMotorModules(bool classic) override {
        Note(classic ? "classic points" : "points");
    }

    std::vector<SystemStatus> shown;
    /// What was shown, with the number of frames sent before it.
    std::vector<std::pair<std::string, std::size_t>> notes;

  private:
    void Note(const char* what) { notes.emplace_back(what, now_()); }

    std::function<std::size_t()> now_;
};

}  // namespace zelvar::testing
