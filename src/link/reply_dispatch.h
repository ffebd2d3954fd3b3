// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "protocol/frame.h"

namespace zelvar {

/// The replies that concern more than the caller of `Transact`, in the order of their tests.
enum class ReplyKind { VDConfig, KBConfig, BlockSpeed, Feedback, Overcurrent };
constexpr std::size_t kReplyKindCount = 5;

/// @return whether a reply is of that kind.
bool MatchesReply(ReplyKind kind, const ReplyBuffer& reply);

/// Hands each reply to every handler whose test it meets.
class ReplyDispatch {
  public:
    using Handler = std::function<void(const ReplyBuffer&)>;

    void SetHandler(ReplyKind kind, Handler handler);
    void Dispatch(const ReplyBuffer& reply) const;

  private:
    std::array<Handler, kReplyKindCount> handlers_;
};

}  // namespace zelvar
