// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/blocks.h"

#include "protocol/payload.h"

namespace zelvar {

namespace {

constexpr int kLinkCode = 58;
constexpr int kLinked = 2;
constexpr int kLinkedInverted = 6;

constexpr int kUnlinkCode = 56;
constexpr int kUnlinkUp = 4;
constexpr int kClearUnlinked = 2;

constexpr int kClearCode = 62;
constexpr int kCleared = 18;

}  // namespace

Command LinkBlocks(int first, int second, BlockPolarity polarity) {
    const int link = polarity == BlockPolarity::Same ? kLinked : kLinkedInverted;
    return CommandOf(
        {kLinkCode + HighPart(first), LowPart(first), link + HighPart(second), LowPart(second)});
}

Command UnlinkBlocks(int first, UnlinkDirection direction, bool clearUnlinked) {
    return CommandOf({kUnlinkCode + HighPart(first), LowPart(first),
                      (direction == UnlinkDirection::Up ? kUnlinkUp : 0) +
                          (clearUnlinked ? kClearUnlinked : 0)});
}

Command ClearBlock(int block) {
    return CommandOf({kClearCode + HighPart(block), LowPart(block), kCleared});
}

}  // namespace zelvar
