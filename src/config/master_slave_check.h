// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "link/services.h"
#include "status/module_registry.h"

namespace zelvar {

/// Asks every VD-F and VD60 whether it is master or slave, reports whether there is exactly one
/// master, and asks for the state of the clocks when the user wants to know. Blocks up to
/// `kAnswerLimit` for each silent module.
class MasterSlaveCheck {
  public:
    MasterSlaveCheck(const Services& services, const ModuleRegistry& registry);

    /// Runs the check with all its message boxes. A failed exchange ends it without a summary.
    void Run();

  private:
    struct Survey {
        std::string report;
        int masters = 0;
        /// The module that did not answer, which ended the survey.
        std::optional<int> silent;
    };

    std::optional<Survey> AskModes();
    std::optional<std::string> AskClocks();
    bool AskParameter(int module, int parameter, std::optional<int>& value);
    std::string LabelOf(int module) const;
    /// @return whether the setting is sound and the user wants the clocks checked.
    bool Judge(const Survey& survey);

    Services services_;
    const ModuleRegistry& registry_;
    /// The lines to visit, in ascending order.
    std::vector<int> modules_;
};

}  // namespace zelvar
