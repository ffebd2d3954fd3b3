// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "config/module_commands.h"
#include "config/selection_list.h"
#include "link/services.h"
#include "status/module_registry.h"
#include "support/doubles.h"

namespace zelvar::testing {

using Values = std::vector<int>;
using Frames = std::vector<Values>;

/// A registry with every kind of module in every place that matters: on both channels, as
/// secondary units, and of kinds that do not belong where they are.
inline ModuleRegistry MixedRegistry() {
    ModuleRegistry registry;
    const std::pair<int, VDType> lines[] = {
        {0, VDType::VdF},   {5, VDType::Vd60},   {7, VDType::QlrxS}, {12, VDType::Unknown},
        {15, VDType::VdF},  {16, VDType::QlrxS}, {19, VDType::Vd60}, {31, VDType::VdF},
        {37, VDType::Vd60}, {40, VDType::VdF},   {51, VDType::Vd60}, {60, VDType::QlrxS},
    };
    for (const auto& [line, type] : lines) {
        registry.vdTypes.at(static_cast<unsigned>(line)) = type;
    }
    return registry;
}

/// The link with everything that the rooms need around it.
class ConfigFixture : public LinkFixture {
  protected:
    Services services{link, messageBox, progress, clock};
};

/// The modules' side of an exchange in which answers may come with a later poll.
class LateAnswers {
  public:
    /// What is answered to a request's values; a request without an entry gets nothing.
    std::map<Values, Values> answers;
    /// So many empty replies come before the answer.
    int polls = 0;

    Bytes operator()(const SentFrame& frame) {
        if (!frame.values.empty()) {
            const auto found = answers.find(frame.values);
            waiting_ = found == answers.end() ? Values() : found->second;
            left_ = polls;
        }
        if (waiting_.empty() || left_-- > 0) {
            return EmptyReply();
        }
        return WireFrame(std::exchange(waiting_, {}));
    }

  private:
    Values waiting_;
    int left_ = 0;
};

}  // namespace zelvar::testing
