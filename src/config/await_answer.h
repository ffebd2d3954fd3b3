// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "link/link.h"
#include "platform/clock.h"

namespace zelvar {

/// How long a module's answer is waited for, in seconds. Once they have passed nothing more is
/// sent; what the last poll has brought still counts.
constexpr double kAnswerLimit = 2.0;

enum class Awaited { Answer, Silence, Failure };

/// Waits for a module's answer to the command just sent. It may have come as the reply itself or
/// come with one of the next polls; on `Answer` it is `link.Reply()`.
/// @return `Silence` when it did not come in time, `Failure` after a failed exchange. A clock that
/// falls back at midnight ends the wait early.
Awaited AwaitAnswer(Link& link, const Clock& clock,
                    const std::function<bool(const ReplyBuffer&)>& isAnswer);

}  // namespace zelvar
