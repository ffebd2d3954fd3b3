// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "sim/console/console_completion.h"

struct editline;
struct history;

namespace zelvar::sim {

/// The console of a person at a terminal: line editing, history and completion. Takes the terminal
/// over from its making to its end, and never waits: whoever has it waits for standard input.
class LineEditor {
  public:
    using Completer = std::function<Completion(std::string_view line)>;

    enum class Outcome { kGone, kOpen };

    /// `historyFile` is empty when there is no place for it.
    LineEditor(Completer completer, std::string historyFile);
    ~LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    /// Takes the bytes that the terminal has sent; `run` gets each finished line while the terminal
    /// is as other programs know it. Gone: the person has ended the input.
    Outcome Feed(std::string_view bytes, const std::function<void(const std::string&)>& run);
    /// Puts text above the line being edited, which stays whole.
    void Print(std::string_view text);
    /// The terminal has another size, or the program was stopped and goes on.
    void Restore();

  private:
    /// The next byte of a key; nothing when the key is over.
    std::optional<char> NextByte();
    static int NextCharacter(editline* editor, wchar_t* character);
    static unsigned char CompleteKey(editline* editor, int key);

    void Begin();
    void Suspend();
    void Accept(const std::string& line, const std::function<void(const std::string&)>& run);
    unsigned char Complete();
    void HideLine();

    Completer completer_;
    std::string historyFile_;
    editline* editor_ = nullptr;
    history* history_ = nullptr;
    std::deque<char> input_;  // typed, but not yet taken by the editor
    bool editing_ = false;
};

/// Where the lines are kept: in the user's folder for such data, which is made when it is missing;
/// empty when the user has none.
std::string HistoryPath();

}  // namespace zelvar::sim
