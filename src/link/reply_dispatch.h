// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>

#include "protocol/reply_kinds.h"

namespace zelvar {

/// Hands each reply to every handler whose test it meets.
class ReplyDispatch {
  public:
    using Handler = std::function<void(const Reply&)>;

    /// Replaces the handler of that kind.
    void SetHandler(ReplyKind kind, Handler handler);

    /// All tests are made, in the order of `ReplyKind`.
    void Dispatch(const Reply& reply) const;

  private:
    std::array<Handler, kReplyKindCount> handlers_;
};

}  // namespace zelvar
