// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "harness/child_process.h"
#include "harness/temp_folder.h"

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

/// The program, built as it ships, without a display. The probe in it is reached over
/// a local socket. Every routine throws std::runtime_error, with the program's standard error in
/// its text, when the program does not answer or cannot do what is asked.
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

    std::string Text(const std::string& control) { return AskOne({"text", control}); }
    std::string Items(const std::string& list) { return AskOne({"items", list}); }
    bool IsChecked(const std::string& control) { return AskOne({"checked", control}) == "yes"; }
    bool IsVisible(const std::string& control) { return AskOne({"visible", control}) == "yes"; }
    /// "visible", "hidden" or "absent".
    std::string Window(const std::string& name) { return AskOne({"window", name}); }
    BoxText Box();
    /// Every message box shown so far.
    std::vector<std::string> BoxesShown() { return Ask({"boxes"}); }

    void Click(const std::string& control) { Ask({"click", control}); }
    void Choose(const std::string& list, const std::string& entry);
    void Type(const std::string& field, const std::string& text) { Ask({"type", field, text}); }
    void ToFront(const std::string& control) { Ask({"tab", control}); }
    /// Answers the message box and waits until it is closed.
    void Answer(const std::string& button);
    /// Waits for a message box.
    BoxText AwaitBox();

    /// Waits until the probe answers a question so.
    /// @return nothing when it did within the limit, else what it answers instead
    std::optional<std::string> WhyNot(const std::vector<std::string>& question,
                                      const std::string& answer, Milliseconds limit = kLimit);

    ChildProcess& Process() { return process_; }

  private:
    int listener_;
    ChildProcess process_;
    LineChannel channel_;
};

}  // namespace zelvar::e2e
