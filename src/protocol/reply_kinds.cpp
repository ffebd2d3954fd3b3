// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/reply_kinds.h"

#include <array>

namespace zelvar {

namespace {

/// What the count and the first two values of a reply must be.
struct ReplyTest {
    int fewest;
    int most;
    int mask1;
    int value1;
    int mask2;
    int value2;
};

constexpr int kWhole = 0xFF;
constexpr int kIgnored = 0;

/// In the order of `ReplyKind`.
constexpr std::array<ReplyTest, kReplyKindCount> kReplyTests{{
    {5, 7, kWhole, 0, 0xE0, 0x20},
    {4, 4, kWhole, 1, 0xFE, 14},
    {3, 3, 0xFE, 0x22, kIgnored, 0},
    {2, 2, 0xC0, 0x40, kIgnored, 0},
    {2, 2, 0xFC, 0x30, kIgnored, 0},
}};

}  // namespace

bool MatchesReply(ReplyKind kind, const Reply& reply) {
    const ReplyTest& test = kReplyTests.at(static_cast<unsigned>(kind));
    return reply.HasMark() && reply.Count() >= test.fewest && reply.Count() <= test.most &&
           (reply[1] & test.mask1) == test.value1 && (reply[2] & test.mask2) == test.value2;
}

}  // namespace zelvar
