// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/await_answer.h"

namespace zelvar {

Awaited AwaitAnswer(Link& link, const Clock& clock,
                    const std::function<bool(const ReplyBuffer&)>& isAnswer) {
    const double start = clock.SecondsSinceMidnight();
    while (!isAnswer(link.Reply())) {
        const double now = clock.SecondsSinceMidnight();
        if (now >= start + kAnswerLimit || now < start) {
            return Awaited::Silence;
        }
        if (!link.Transact(kEmptyTransaction)) {
            return Awaited::Failure;
        }
    }
    return Awaited::Answer;
}

}  // namespace zelvar
