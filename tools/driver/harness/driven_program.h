// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QLocalSocket>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "harness/child_process.h"

namespace zelvar::e2e {

/// What a message box shows. Empty while none is open.
struct BoxText {
    std::string title;
    std::string icon;
    std::string text;
    std::string buttons;

    bool operator==(const BoxText&) const = default;
};

std::ostream& operator<<(std::ostream& out, const BoxText& box);

/// The program, built as it ships, without a display. A local socket leads to the probe in it.
/// Every routine throws std::runtime_error, with the program's standard error in its text, when the
/// program does not answer or cannot do what is asked. The hand has the words that it has in
/// tests/support/window_fixture.h.
class DrivenProgram {
  public:
    /// @param ports the devices of the ports 1, 2, 3 ..., separated by colons
    /// @param variables of the environment, beside those that every program here gets
    DrivenProgram(const TempFolder& folder, const std::string& ports, const std::string& name,
                  const Variables& variables = {});
    ~DrivenProgram();
    DrivenProgram(const DrivenProgram&) = delete;
    DrivenProgram& operator=(const DrivenProgram&) = delete;

    /// A command of the probe. @return the values of its answer
    std::vector<std::string> Ask(const std::vector<std::string>& words);
    /// The same for a command that answers with one value.
    std::string AskOne(const std::vector<std::string>& words);

    std::string TextOf(const std::string& control) { return AskOne({"text", control}); }
    /// The entries of a list with "|" between them.
    std::string ItemsOf(const std::string& list) { return AskOne({"items", list}); }
    int ValueOf(const std::string& slider) { return std::stoi(AskOne({"value", slider})); }
    std::string ColourOf(const std::string& control, const std::string& role) {
        return AskOne({"colour", control, role});
    }
    bool IsTicked(const std::string& control) { return AskOne({"checked", control}) == "yes"; }
    bool IsVisible(const std::string& control) { return AskOne({"visible", control}) == "yes"; }
    /// "visible", "hidden" or "absent".
    std::string Window(const std::string& name) { return AskOne({"window", name}); }
    std::string TitleOf(const std::string& window) { return AskOne({"title", window}); }
    BoxText Box();
    /// Every message box shown so far.
    std::vector<std::string> BoxesShown() { return Ask({"boxes"}); }

    // The tab of the control comes to the front first.
    void Click(const std::string& control) { Do("click", control); }
    void DoubleClick(const std::string& control) { Do("doubleclick", control); }
    /// Presses the mouse button and keeps it down. @param modifiers such as "shift+ctrl"
    void Press(const std::string& control, const std::string& button, const std::string& modifiers);
    /// Keys such as "Space" or "Ctrl+A, Delete".
    void Key(const std::string& control, const std::string& keys) { Do("key", control, keys); }
    void Choose(const std::string& list, const std::string& entry) { Do("choose", list, entry); }
    /// Types a text over what a field shows.
    void Type(const std::string& field, const std::string& text) { Do("type", field, text); }

    void ShowTabOf(const std::string& control) { Ask({"tab", control}); }
    void Close(const std::string& window) { Ask({"close", window}); }
    /// Answers the message box and waits until it is closed.
    void Answer(const std::string& button);
    /// Waits for a message box.
    BoxText AwaitBox();

    /// Waits until the probe answers a question so.
    /// @return nothing when it did within the limit, else what it answers instead
    std::optional<std::string> Mismatch(const std::vector<std::string>& question,
                                        const std::string& answer);

    ChildProcess& Process() { return process_; }

  private:
    template <typename... Details>
    void Do(const std::string& action, const std::string& control, const Details&... details) {
        ShowTabOf(control);
        Ask({action, control, details...});
    }

    QLocalServer server_;
    ChildProcess process_;
    QLocalSocket* probe_ = nullptr;
};

}  // namespace zelvar::e2e
