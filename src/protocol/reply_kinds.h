// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "protocol/reply.h"

namespace zelvar {

/// The replies that concern more than the caller who sent the command, in the order of their tests.
enum class ReplyKind { VDConfig, KBConfig, BlockSpeed, Feedback, Overcurrent };
constexpr int kReplyKindCount = 5;

/// @return whether a reply is of that kind.
bool MatchesReply(ReplyKind kind, const Reply& reply);

}  // namespace zelvar
