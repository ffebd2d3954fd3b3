// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/reply_dispatch.h"

#include <utility>

namespace zelvar {

namespace {

struct ReplyTest {
    ReplyKind kind;
    /// The allowed low nibbles of the header: 8 + the number of data bytes.
    int headerFirst;
    int headerLast;
    int mask1;
    int value1;
    int mask2;
    int value2;
};

constexpr int kWhole = 0xFF;
constexpr int kIgnored = 0;

/// All tests are made, in this order.
constexpr std::array<ReplyTest, kReplyKindCount> kReplyTests{{
    {ReplyKind::VDConfig, 13, 15, kWhole, 0, 0xE0, 0x20},
    {ReplyKind::KBConfig, 12, 12, kWhole, 1, 0xFE, 14},
    {ReplyKind::BlockSpeed, 11, 11, 0xFE, 0x22, kIgnored, 0},
    {ReplyKind::Feedback, 10, 10, 0xC0, 0x40, kIgnored, 0},
    {ReplyKind::Overcurrent, 10, 10, 0xFC, 0x30, kIgnored, 0},
}};

bool Matches(const ReplyTest& test, const ReplyBuffer& reply) {
    const int kind = reply[0] & kHeaderKindMask;
    return kind >= test.headerFirst && kind <= test.headerLast &&
           (reply[1] & test.mask1) == test.value1 && (reply[2] & test.mask2) == test.value2;
}

}  // namespace

bool MatchesReply(ReplyKind kind, const ReplyBuffer& reply) {
    return Matches(kReplyTests[static_cast<std::size_t>(kind)], reply);
}

void ReplyDispatch::SetHandler(ReplyKind kind, Handler handler) {
    handlers_[static_cast<std::size_t>(kind)] = std::move(handler);
}

void ReplyDispatch::Dispatch(const ReplyBuffer& reply) const {
    for (const ReplyTest& test : kReplyTests) {
        const Handler& handler = handlers_[static_cast<std::size_t>(test.kind)];
        if (handler && Matches(test, reply)) {
            handler(reply);
        }
    }
}

}  // namespace zelvar
