// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "sim/console/console_completion.h"

struct editline;
struct history;

namespace zelvar::sim {

/// The console of a user at a terminal: line editing, history and completion. It owns the terminal
/// while it exists. Its owner waits for standard input.
class LineEditor {
  public:
    using Completer = std::function<Completion(std::string_view line)>;

    enum class Outcome { kEnded, kOpen };

    /// @param historyFile empty: no history is kept
    LineEditor(Completer completer, std::string historyFile);
    ~LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    /// Reads the keys typed so far; `run` gets each finished line, with the terminal in its usual
    /// mode. Ended: no more input will come.
    Outcome ReadKeys(const std::function<void(const std::string&)>& run);
    /// Prints text above the line being edited.
    void Print(std::string_view text);
    /// To be called when the terminal has changed its size or the program goes on after a stop.
    void Restore();

  private:
    /// The next byte of a key; none when the key is complete.
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
    bool editing_ = false;
    bool ended_ = false;  // standard input has ended
};

/// The history file, in the user's folder for such data, which is created if missing; empty if the
/// user has none.
std::string HistoryPath();

}  // namespace zelvar::sim
