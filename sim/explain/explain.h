// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "sim/protocol/phrase.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// What earlier frames of a conversation add to the meaning of the next one.
struct Conversation {
    /// The command that the next reply belongs to; none before the first and after a broken one.
    std::optional<Payload> command;
    KnownTypes types;
};

/// The meaning of the data of a command: "analog speed: block 5, speed 12 forward".
std::string ExplainCommandData(const Payload& command, const Conversation& conversation = {});
/// The meaning of the data of a reply to the conversation's command.
std::string ExplainReplyData(const Conversation& conversation, const Payload& reply);

/// Explains the frames of both directions in the order in which they came. Broken frames are
/// explained as such.
class Explainer {
  public:
    std::string Command(std::span<const std::uint8_t> bytes);
    std::string Reply(std::span<const std::uint8_t> bytes);

  private:
    Conversation conversation_;
};

/// One line of a trace: "12:00:03.120  > 0B A2 85 CC 82        analog speed: ...". `sent`: a reply.
std::string TraceLine(std::string_view time, bool sent, std::span<const std::uint8_t> bytes,
                      std::string_view meaning);
/// "0B A2 85 CC 82"
std::string HexText(std::span<const std::uint8_t> bytes);

/// The lines read, and how many of them were not recognised.
struct LogCount {
    std::size_t lines = 0;
    std::size_t unknown = 0;
};

/// Copies a log line by line and adds the meaning to each: the program's message log, and the trace
/// of this unit. Any other line is kept and marked with its number.
LogCount ExplainLog(std::istream& in, std::ostream& out);

}  // namespace zelvar::sim
