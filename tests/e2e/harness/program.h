// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "harness/driven_program.h"

namespace zelvar::e2e {

/// The program under test, with what it shows as an assertion.
class Program : public DrivenProgram {
  public:
    /// @param ports the devices of the ports 1, 2, 3 ..., separated by colons
    Program(const TempFolder& folder, const std::string& ports, const std::string& name = "program")
        : DrivenProgram(folder, ports, name) {}

    /// Waits until a control shows a text.
    ::testing::AssertionResult Shows(const std::string& control, const std::string& text) {
        return Says({"text", control}, text);
    }

    /// Waits until the probe answers a question so.
    ::testing::AssertionResult Says(const std::vector<std::string>& question,
                                    const std::string& answer) {
        const std::optional<std::string> complaint = Mismatch(question, answer);
        return complaint ? ::testing::AssertionFailure() << *complaint
                         : ::testing::AssertionSuccess();
    }
};

}  // namespace zelvar::e2e
