// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/await_answer.h"

#include "protocol/status.h"

namespace zelvar {

Awaited AskModule(Link& link, const Clock& clock, const Command& command,
                  const std::function<bool(const Reply&)>& isAnswer) {
    std::optional<Reply> reply = link.Transact(command);
    const double start = clock.SecondsSinceMidnight();
    while (reply && !isAnswer(*reply)) {
        const double now = clock.SecondsSinceMidnight();
        if (now >= start + kAnswerLimit || now < start) {
            return Awaited::Silence;
        }
        reply = link.Transact(kEmptyTransaction);
    }
    return reply ? Awaited::Answer : Awaited::Failure;
}

}  // namespace zelvar
