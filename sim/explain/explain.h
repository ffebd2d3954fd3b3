// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sim/protocol/wire.h"
#include "sim/unit/commands.h"
#include "sim/unit/layout.h"

namespace zelvar::sim {

/// What the explanations of one conversation know of what was said before.
struct Conversation {
    /// The command the next reply belongs to; none before the first, and after a broken one.
    std::optional<Payload> command;
    /// Traction types by module address, as far as a status told them: what a setting means can
    /// depend on them.
    std::array<std::optional<int>, kModuleAddresses> types{};

    /// None when nothing is known. Only a VD60 has a second unit.
    std::optional<int> TypeOf(int address) const;
};

/// The words for the commands of one name. Each row of the command tables needs one.
struct CommandWords {
    std::string_view name;
    std::string (*words)(const Payload& command);
    /// An empty reply to it is not the whole answer.
    bool asks = false;
    /// In place of `words` where they depend on what was said before.
    std::string (*wordsIn)(const Conversation& conversation, const Payload& command) = nullptr;
};

std::span<const CommandWords> StatusWords();
std::span<const CommandWords> ModuleWords();
std::span<const CommandWords> UnitWords();
std::span<const CommandWords> DriveWords();
std::span<const CommandWords> AccessoryWords();

/// By the command's name; null when there are none.
const CommandWords* FindWords(std::string_view name);

/// One shape of reply. Adding one is adding a row.
struct ReplyWords {
    std::string_view name;
    CommandPattern pattern;
    std::string (*words)(const Conversation& conversation, const Payload& reply);
    /// Whether it is what `command` asked for; null for reports, which come unasked.
    bool (*answers)(const Payload& command, const Payload& reply);
};

std::span<const ReplyWords> ReplyTable();

/// The meaning of the data of a command: "analog speed: block 5, speed 12 forward".
std::string ExplainCommandData(const Payload& command, const Conversation& conversation = {});
/// The meaning of the data of a reply to the conversation's command.
std::string ExplainReplyData(const Conversation& conversation, const Payload& reply);

/// Tells the meaning of frames as they stand on the line, one after the other, of both directions.
/// Frames that are broken are said to be so.
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

/// How many lines of a log there were, and how many of them nobody understands.
struct LogCount {
    std::size_t lines = 0;
    std::size_t unknown = 0;
};

/// Copies a log line by line and adds the meaning to each: the program's message log, and the trace
/// of this unit. A line that is neither is kept and marked with its number.
LogCount ExplainLog(std::istream& in, std::ostream& out);

}  // namespace zelvar::sim
