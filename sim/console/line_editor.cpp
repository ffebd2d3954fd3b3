// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/line_editor.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <filesystem>
#include <histedit.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <system_error>
#include <unistd.h>

namespace zelvar::sim {

namespace {

constexpr const char* kPrompt = "zelvarsim> ";
constexpr int kHistoryLines = 1000;
constexpr char kEndOfInput = '\x04';  // the editor's answer to Ctrl-D on an empty line
/// A key can send several bytes, which arrive together; after this long the key is complete. Frames
/// on the line wait for as long.
constexpr int kKeyMs = 30;

struct Key {
    const char* key;
    const char* function;
};

/// In addition to the editor's own. Functions that wait for another key would hold up the line:
/// searching takes the text typed so far, and the others are disabled.
constexpr Key kKeys[] = {{"^I", "complete-word"},
                         {"^R", "ed-search-prev-history"},
                         {"^S", "ed-search-next-history"},
                         {"^V", "ed-unassigned"},
                         {"\\ex", "ed-unassigned"}};

char* Prompt(EditLine*) {
    static std::string prompt = kPrompt;
    return prompt.data();
}

int TerminalColumns() {
    constexpr int kUsual = 80;
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsual;
}

/// Whether standard input has something, or has ended, within this many milliseconds.
bool InputWaits(int limit) {
    pollfd entry{STDIN_FILENO, POLLIN, 0};
    return ::poll(&entry, 1, limit) == 1;
}

void WriteOut(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

}  // namespace

std::string HistoryPath() {
    const char* state = std::getenv("XDG_STATE_HOME");
    const char* home = std::getenv("HOME");
    std::filesystem::path folder;
    if (state != nullptr && std::filesystem::path(state).is_absolute()) {
        folder = state;
    } else if (home != nullptr && *home != '\0') {
        folder = std::filesystem::path(home) / ".local" / "state";
    } else {
        return {};
    }
    folder /= "zelvarsim";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return error ? std::string() : (folder / "history").string();
}

LineEditor::LineEditor(Completer completer, std::string historyFile)
    : completer_(std::move(completer)),
      historyFile_(std::move(historyFile)),
      editor_(el_init("zelvarsim", stdin, stdout, stderr)),
      history_(history_init()) {
    // Only the characters of the user's locale, not its numbers.
    std::setlocale(LC_CTYPE, "");
    HistEvent event{};
    ::history(history_, &event, H_SETSIZE, kHistoryLines);
    ::history(history_, &event, H_SETUNIQUE, 1);
    if (!historyFile_.empty()) {
        ::history(history_, &event, H_LOAD, historyFile_.c_str());
    }
    el_set(editor_, EL_CLIENTDATA, this);
    el_set(editor_, EL_PROMPT, &Prompt);
    el_set(editor_, EL_EDITOR, "emacs");
    el_set(editor_, EL_HIST, &::history, history_);
    el_set(editor_, EL_GETCFN, &LineEditor::NextCharacter);
    // Wide, because the library never frees its copies of narrow texts.
    el_wset(editor_, EL_ADDFN, L"complete-word", L"Completes the word", &LineEditor::CompleteKey);
    for (const Key& key : kKeys) {
        el_set(editor_, EL_BIND, key.key, key.function, nullptr);
    }
    Begin();
}

LineEditor::~LineEditor() {
    if (editing_) {
        HideLine();
        Suspend();
    }
    el_end(editor_);
    history_end(history_);
}

void LineEditor::Begin() {
    el_set(editor_, EL_UNBUFFERED, 1);
    editing_ = true;
}

void LineEditor::Suspend() {
    el_set(editor_, EL_UNBUFFERED, 0);
    editing_ = false;
}

std::optional<char> LineEditor::NextByte() {
    // A lone Escape begins a key that never goes on.
    if (!InputWaits(kKeyMs)) {
        return std::nullopt;
    }
    char byte = 0;
    ended_ = read(STDIN_FILENO, &byte, 1) != 1;
    return ended_ ? std::nullopt : std::optional(byte);
}

int LineEditor::NextCharacter(EditLine* editor, wchar_t* character) {
    void* client = nullptr;
    el_get(editor, EL_CLIENTDATA, &client);
    auto& self = *static_cast<LineEditor*>(client);
    constexpr auto kPartOfOne = static_cast<std::size_t>(-2);
    constexpr auto kNone = static_cast<std::size_t>(-1);
    std::mbstate_t state{};
    while (const std::optional<char> byte = self.NextByte()) {
        const std::size_t length = std::mbrtowc(character, &*byte, 1, &state);
        if (length == kNone) {
            state = {};  // skipped: no character of the user's locale
        } else if (length != kPartOfOne) {
            return 1;
        }
    }
    return 0;
}

LineEditor::Outcome LineEditor::ReadKeys(const std::function<void(const std::string&)>& run) {
    while (InputWaits(0)) {
        int count = 0;
        const char* text = el_gets(editor_, &count);
        // The buffer goes on after `count`.
        const std::string line =
            text == nullptr || count <= 0 ? "" : std::string(text, text + count);
        if (ended_ || line == std::string(1, kEndOfInput)) {
            return Outcome::kEnded;
        }
        if (line.ends_with('\n') || line.ends_with('\r')) {
            // Completion leaves a space after the last word.
            Accept(line.substr(0, line.find_last_not_of(" \r\n") + 1), run);
        }
    }
    return Outcome::kOpen;
}

void LineEditor::Accept(const std::string& line,
                        const std::function<void(const std::string&)>& run) {
    Suspend();
    if (!line.empty()) {
        HistEvent event{};
        ::history(history_, &event, H_ENTER, line.c_str());
        // Saved now, so that the line is kept however the program ends.
        if (!historyFile_.empty()) {
            ::history(history_, &event, H_SAVE, historyFile_.c_str());
        }
    }
    run(line);
    Begin();
}

void LineEditor::HideLine() {
    const LineInfoW* line = el_wline(editor_);
    const auto before = std::strlen(kPrompt) + (line->cursor - line->buffer);
    const int rowsAbove = static_cast<int>(before) / TerminalColumns();
    std::string escape = "\r";
    if (rowsAbove > 0) {
        escape += "\x1b[" + std::to_string(rowsAbove) + "A";
    }
    WriteOut(escape + "\x1b[J");
}

void LineEditor::Print(std::string_view text) {
    if (!editing_) {
        WriteOut(text);
        return;
    }
    HideLine();
    WriteOut(text);
    el_set(editor_, EL_REFRESH);
}

void LineEditor::Restore() {
    el_resize(editor_);
    if (editing_) {
        // While the program was stopped, another one has used the terminal.
        el_set(editor_, EL_PREP_TERM, 1);
        HideLine();
        el_set(editor_, EL_REFRESH);
    }
}

unsigned char LineEditor::CompleteKey(EditLine* editor, int) {
    void* client = nullptr;
    el_get(editor, EL_CLIENTDATA, &client);
    return static_cast<LineEditor*>(client)->Complete();
}

unsigned char LineEditor::Complete() {
    const LineInfo* info = el_line(editor_);
    const std::string line(info->buffer, info->cursor);
    const auto [begun, words] = completer_(line);
    if (words.empty()) {
        return CC_REFRESH_BEEP;
    }
    std::string rest = CommonBeginning(words).substr(begun.size());
    if (words.size() == 1) {
        rest += " ";
    }
    if (!rest.empty()) {
        return el_insertstr(editor_, rest.c_str()) == 0 ? CC_REFRESH : CC_REFRESH_BEEP;
    }
    HideLine();
    WriteOut(kPrompt + line + "\n" + InColumns(words, TerminalColumns()));
    return CC_REDISPLAY;
}

}  // namespace zelvar::sim
