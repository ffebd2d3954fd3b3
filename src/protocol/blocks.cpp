// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/blocks.h"

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
    return CommandOf({kLinkCode + High7(first), Low7(first), link + High7(second), Low7(second)});
}

Command UnlinkBlocks(int first, UnlinkDirection direction, bool clearUnlinked) {
    return CommandOf({kUnlinkCode + High7(first), Low7(first),
                      (direction == UnlinkDirection::Up ? kUnlinkUp : 0) +
                          (clearUnlinked ? kClearUnlinked : 0)});
}

Command ClearBlock(int block) {
    return CommandOf({kClearCode + High7(block), Low7(block), kCleared});
}

std::vector<CommandRow> BlockCommands() {
    using Arguments = std::span<const int>;
    const CommandParameter block{"block", 0, 255};
    return {
        {"link",
         {{"first", 0, 255}, {"second", 0, 255}, {"inverted", 0, 1}},
         [](Arguments a) {
             return LinkBlocks(a[0], a[1],
                               a[2] != 0 ? BlockPolarity::Inverted : BlockPolarity::Same);
         }},
        {"unlink",
         {block, {"up", 0, 1}, {"clear", 0, 1}},
         [](Arguments a) {
             return UnlinkBlocks(a[0], a[1] != 0 ? UnlinkDirection::Up : UnlinkDirection::Down,
                                 a[2] != 0);
         }},
        {"clear-block", {block}, [](Arguments a) { return ClearBlock(a[0]); }},
    };
}

}  // namespace zelvar
