// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "link/link.h"
#include "platform/clock.h"

namespace zelvar {

/// How long a module's answer is waited for, in seconds. Once they have passed nothing more is
/// sent; what the last poll has brought still counts.
constexpr double kAnswerLimit = 2.0;

enum class Awaited { Answer, Silence, Failure };

/// Sends a command to a module and waits for its answer, which comes as the reply itself or with
/// one of the next polls.
/// @param isAnswer takes a reply and keeps what it needs of the answer
/// @return `Silence` when the answer did not come in time, `Failure` after a failed exchange. A
/// clock that falls back at midnight ends the wait early.
Awaited AskModule(Link& link, const Clock& clock, const Command& command,
                  const std::function<bool(const Reply&)>& isAnswer);

}  // namespace zelvar
