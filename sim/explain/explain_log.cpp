// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "sim/explain/explain.h"
#include "sim/text/number.h"
#include "sim/text/words.h"

namespace zelvar::sim {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::string_view kSpaces = " \t\r";
constexpr std::size_t kByteText = 3;  // a space and two digits
/// The length of a line whose reply is as long as a reply can be.
constexpr std::size_t kLogColumn = 62;
constexpr int kMostByte = 255;
constexpr std::string_view kUnansweredPoll = "poll -> no answer";
constexpr std::string_view kUnknownMark = "? line ";

/// Takes " 0A 81 80 F5" off the front of the text; the bytes end where something else comes.
Bytes TakeBytes(std::string_view& text) {
    const auto isDigit = [](char digit) {
        return (digit >= '0' && digit <= '9') || (digit >= 'A' && digit <= 'F') ||
               (digit >= 'a' && digit <= 'f');
    };
    Bytes bytes;
    while (text.size() >= kByteText && text[0] == ' ' && isDigit(text[1]) && isDigit(text[2]) &&
           (text.size() == kByteText || text[kByteText] == ' ')) {
        const std::string digits = "0x" + std::string(text.substr(1, 2));
        bytes.push_back(static_cast<std::uint8_t>(*ParseInt(digits, 0, kMostByte)));
        text.remove_prefix(kByteText);
    }
    return bytes;
}

std::string_view WithoutSpacesBefore(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kSpaces), text.size()));
    return text;
}

std::string_view WithoutSpacesAfter(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kSpaces) + 1);
}

/// After the bytes comes nothing, or the meaning that was added earlier.
bool EndsFrames(std::string_view rest) {
    return rest.empty() || rest.starts_with("  ");
}

/// "? line 12: ...", the mark of an earlier explanation.
bool IsMarked(std::string_view content) {
    if (!content.starts_with(kUnknownMark)) {
        return false;
    }
    content.remove_prefix(kUnknownMark.size());
    const std::size_t digits = content.find_first_not_of("0123456789");
    return digits != 0 && digits != std::string_view::npos &&
           content.substr(digits).starts_with(": ");
}

/// ">> 0A 81 80 F5                 << 08 F8", also with a meaning after it, and with nothing after
/// the "<<", where no answer came.
std::optional<std::string> ExplainLogLine(Explainer& explainer, std::string_view line) {
    std::string_view rest = line;
    rest.remove_prefix(2);
    const Bytes command = TakeBytes(rest);
    if (command.empty() || !EndsFrames(rest)) {
        return std::nullopt;
    }
    std::string meaning = explainer.Command(command);
    std::string_view frames = WithoutSpacesAfter(line.substr(0, line.size() - rest.size()));
    std::string_view after = WithoutSpacesBefore(rest);
    if (after.starts_with("<<")) {
        after.remove_prefix(2);
        const Bytes reply = TakeBytes(after);
        if (!EndsFrames(after)) {
            return std::nullopt;
        }
        meaning.append(" -> ").append(reply.empty() ? "no answer" : explainer.Reply(reply));
        frames = line.substr(0, line.size() - after.size());
    } else {
        meaning.append(" -> no answer");
    }
    std::string text(frames);
    text.resize(std::max(text.size() + 2, kLogColumn), ' ');
    return text + meaning;
}

/// "12:00:03.120  > 0B A2 85 CC 82        analog speed: ...", also without time and meaning.
std::optional<std::string> ExplainTraceLine(Explainer& explainer, std::string_view line) {
    const std::size_t mark = line.find_first_of("<>");
    if (mark == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view time = WithoutSpacesAfter(line.substr(0, mark));
    if (time.find_first_not_of("0123456789:.") != std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view rest = line.substr(mark + 1);
    const Bytes bytes = TakeBytes(rest);
    if (bytes.empty() || !EndsFrames(rest)) {
        return std::nullopt;
    }
    const bool sent = line[mark] == '<';
    return TraceLine(time, sent, bytes, sent ? explainer.Reply(bytes) : explainer.Command(bytes));
}

}  // namespace

LogCount ExplainLog(std::istream& in, std::ostream& out) {
    Explainer explainer;
    LogCount count;
    bool inLog = false;  // the line before was one of the program's log
    for (std::string raw; std::getline(in, raw);) {
        ++count.lines;
        const std::string_view line = WithoutSpacesAfter(raw);
        const std::string_view content = WithoutSpacesBefore(line);
        std::optional<std::string> explained;
        if (content.starts_with(">>")) {
            explained = ExplainLogLine(explainer, content);
            inLog = inLog || explained;
        } else if (content.empty() || content == kUnansweredPoll) {
            // The log of the program has an empty line where a poll got no answer.
            const bool poll = inLog || !content.empty();
            explained = poll ? std::string(kLogColumn, ' ').append(kUnansweredPoll) : std::string();
        } else if (IsMarked(content)) {
            ++count.unknown;
            out << line << '\n';
            continue;
        } else {
            explained = ExplainTraceLine(explainer, content);
            inLog = inLog && !explained;
        }
        if (explained) {
            out << *explained << '\n';
        } else {
            ++count.unknown;
            out << kUnknownMark << count.lines << ": " << line << '\n';
        }
    }
    return count;
}

}  // namespace zelvar::sim
