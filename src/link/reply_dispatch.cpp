// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/reply_dispatch.h"

#include <utility>

namespace zelvar {

void ReplyDispatch::SetHandler(ReplyKind kind, Handler handler) {
    handlers_.at(static_cast<unsigned>(kind)) = std::move(handler);
}

void ReplyDispatch::Dispatch(const Reply& reply) const {
    for (int kind = 0; const Handler& handler : handlers_) {
        if (handler && MatchesReply(static_cast<ReplyKind>(kind), reply)) {
            handler(reply);
        }
        ++kind;
    }
}

}  // namespace zelvar
