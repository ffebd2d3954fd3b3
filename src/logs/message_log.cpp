// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "logs/message_log.h"

#include <span>

namespace zelvar {

namespace {

constexpr const char* kLineEnd = "\r\n";
/// As wide as the text of a byte, so that every sent frame takes the same width.
constexpr std::size_t kByteWidth = 3;

std::string HexText(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += FormatHexByte(byte);
    }
    return text;
}

bool IsPoll(const FrameBytes& frame) {
    return (frame[0] & kHeaderCountMask) == 0;
}

std::string SentText(const FrameBytes& frame) {
    return ">>" + HexText(frame.View()) +
           std::string((kMaxFrameBytes - frame.size()) * kByteWidth, ' ');
}

}  // namespace

std::string FormatHexByte(std::uint8_t byte) {
    constexpr char digits[] = "0123456789ABCDEF";
    return {' ', digits[byte >> 4], digits[byte & 0x0F]};
}

std::string LogFrameSent(const FrameBytes& frame) {
    return IsPoll(frame) ? std::string() : SentText(frame);
}

std::string LogReplyReceived(const FrameBytes& frame, const Reply& reply) {
    if (IsPoll(frame) && reply.Count() == 0) {
        return {};
    }
    return (IsPoll(frame) ? SentText(frame) : std::string()) + "  <<" + HexText(reply.Bytes()) +
           kLineEnd;
}

std::string LogNoReply() {
    return kLineEnd;
}

}  // namespace zelvar
