// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/explain.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "sim/explain/replies.h"
#include "sim/unit/commands.h"

namespace zelvar::sim {

namespace {

constexpr std::size_t kHexColumn = 28;  // the longest frame: nine bytes, and a space

std::string Values(const Payload& data) {
    std::string text = "values";
    for (std::size_t index = 0; index < data.size(); ++index) {
        text.append(index == 0 ? " " : ", ").append(std::to_string(data[index]));
    }
    return text;
}

std::string EmptyReply(const std::optional<Payload>& command) {
    if (!command) {
        return "acknowledged";
    }
    if (command->size() == 0) {
        return "nothing to report";
    }
    const CommandRow* row = FindCommand(*command);
    const bool asks = row != nullptr && row->asks == Asks::kYes;
    return asks ? "acknowledged, no answer yet" : "acknowledged";
}

/// What the bytes from one header to the next one are.
struct Piece {
    std::string trouble;  // empty: a correct frame
    std::optional<CommandFrame> frame;
    std::size_t extra = 0;  // bytes after it that belong to no frame
};

Piece TakeApart(std::span<const std::uint8_t> bytes, bool reply) {
    const std::uint8_t header = bytes[0];
    const bool holds = (header & kHeaderHoldBit) != 0;
    if (header >= kDataBit) {
        return {std::to_string(bytes.size()) + " bytes without a header", {}, 0};
    }
    if ((header & kHeaderMark) == 0 || (holds && !reply)) {
        return {"no frame: " + HexText(bytes.first(1)) + " is no header", {}, 0};
    }
    const std::size_t count = header & kCountMask;
    const std::size_t length = count + 2;  // header and checksum beside the data
    if (bytes.size() < length) {
        return {"incomplete: " + std::to_string(bytes.size()) + " of " + std::to_string(length) +
                    " bytes",
                {},
                0};
    }
    Piece piece;
    piece.frame = CommandFrame{header, {}};
    for (const std::uint8_t byte : bytes.subspan(1, count)) {
        piece.frame->data.Append(byte);
    }
    piece.extra = bytes.size() - length;
    const std::uint8_t expected = ChecksumByte(bytes.first(length - 1));
    if (bytes[length - 1] != expected) {
        piece.trouble = "wrong checksum, " + HexText(std::span(&expected, 1)) + " expected: ";
    }
    return piece;
}

std::string Flags(std::uint8_t header, bool reply) {
    if (!reply) {
        return (header & kHeaderStopBit) != 0 ? " [stop]" : "";
    }
    const bool fault = (header & kHeaderFaultBit) != 0;
    const bool hold = (header & kHeaderHoldBit) != 0;
    return fault && hold ? " [fault, hold]" : fault ? " [fault]" : hold ? " [hold]" : "";
}

/// Explains each frame by `words`, which gets the frame and whether it is correct.
template <typename Words>
std::string ExplainBytes(std::span<const std::uint8_t> bytes, bool reply, const Words& words) {
    std::string text;
    while (!bytes.empty()) {
        std::size_t length = 1;
        while (length < bytes.size() && bytes[length] >= kDataBit) {
            ++length;
        }
        const Piece piece = TakeApart(bytes.first(length), reply);
        bytes = bytes.subspan(length);
        text.append(text.empty() ? "" : "; ").append(piece.trouble);
        if (piece.frame) {
            text.append(words(*piece.frame, piece.trouble.empty()))
                .append(Flags(piece.frame->header, reply));
        }
        if (piece.extra > 0) {
            text.append("; bytes behind the frame: ").append(std::to_string(piece.extra));
        }
    }
    return text;
}

}  // namespace

std::string ExplainCommandData(const Payload& command, const Conversation& conversation) {
    const CommandRow* row = FindCommand(command);
    return row == nullptr ? "unknown command, " + Values(command)
                          : row->words.In(command, conversation.types);
}

std::string ExplainReplyData(const Conversation& conversation, const Payload& reply) {
    if (reply.size() == 0) {
        return EmptyReply(conversation.command);
    }
    const ReplyRow* row = FindReply(reply);
    if (row == nullptr) {
        return "unknown answer, " + Values(reply);
    }
    const std::string text = row->words.In(reply, conversation.types);
    const std::optional<Payload>& command = conversation.command;
    // A poll brings whatever waits; another command gets what it asks for.
    const bool foreign =
        command && command->size() > 0 && row->answers != nullptr && !row->answers(*command, reply);
    return foreign ? text + " (not what was asked for)" : text;
}

std::string Explainer::Command(std::span<const std::uint8_t> bytes) {
    conversation_.command.reset();
    return ExplainBytes(bytes, false, [this](const CommandFrame& frame, bool right) {
        if (right) {
            conversation_.command = frame.data;
        }
        return ExplainCommandData(frame.data, conversation_);
    });
}

std::string Explainer::Reply(std::span<const std::uint8_t> bytes) {
    return ExplainBytes(bytes, true, [this](const CommandFrame& frame, bool right) {
        if (const auto reported = TypeInStatus(frame.data); right && reported) {
            conversation_.types.Set(reported->address, reported->type);
        }
        return ExplainReplyData(conversation_, frame.data);
    });
}

std::string HexText(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        std::array<char, 4> hex{};
        std::snprintf(hex.data(), hex.size(), "%s%02X", text.empty() ? "" : " ", unsigned{byte});
        text += hex.data();
    }
    return text;
}

std::string TraceLine(std::string_view time, bool sent, std::span<const std::uint8_t> bytes,
                      std::string_view meaning) {
    std::string line(time);
    std::string hex = HexText(bytes);
    hex.resize(std::max(hex.size() + 2, kHexColumn), ' ');
    return line.append(sent ? "  < " : "  > ").append(hex).append(meaning);
}

}  // namespace zelvar::sim
