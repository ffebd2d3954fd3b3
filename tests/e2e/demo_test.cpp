// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "harness/child_process.h"

namespace zelvar::e2e {

namespace {

/// What runs with this text among its environment, by the name of its program.
std::vector<std::pair<std::string, pid_t>> RunningWith(const std::string& mark) {
    std::vector<std::pair<std::string, pid_t>> running;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string number = entry.path().filename();
        if (number.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        std::ifstream environment(entry.path() / "environ", std::ios::binary);
        const std::string text((std::istreambuf_iterator<char>(environment)), {});
        std::string name;
        std::ifstream(entry.path() / "comm") >> name;
        if (text.find(mark) != std::string::npos) {
            running.emplace_back(name, static_cast<pid_t>(std::stoi(number)));
        }
    }
    return running;
}

/// Program and simulated unit as ./demo runs them.
class SideBySide : public ::testing::Test {
  protected:
    SideBySide() : mark_("ZELVAR_TEST_MARK=" + folder_.Path("mark")) {}

    void Start(const std::string& platform = "offscreen") {
        const std::string programs = std::filesystem::path(ZELVARSIM_PROGRAM).parent_path();
        both_.emplace(
            std::vector<std::string>{ZELVAR_SOURCE_FOLDER "/tools/side-by-side", programs},
            StartOptions{{{"QT_QPA_PLATFORM", platform},
                          {"DISPLAY", "/nowhere:99"},
                          {"WAYLAND_DISPLAY", std::nullopt},
                          {"TMPDIR", folder_.Path("")},
                          {"ZELVAR_TEST_MARK", folder_.Path("mark")}}});
    }

    pid_t Find(const std::string& name) {
        pid_t found = 0;
        EXPECT_TRUE(Until([&] {
            for (const auto& [running, pid] : RunningWith(mark_)) {
                found = running == name ? pid : found;
            }
            return found != 0;
        })) << name
            << " does not run";
        return found;
    }

    /// @return the exit status, when nothing is left behind, running or on the disk
    std::optional<int> End() {
        const std::optional<int> status = both_->WaitForExit();
        EXPECT_TRUE(RunningWith(mark_).empty());
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path(""))) {
            // Qt has its own folder among the temporary ones.
            EXPECT_FALSE(entry.path().filename().string().starts_with("tmp."));
        }
        return status;
    }

    TempFolder folder_;
    std::string mark_;
    std::optional<ChildProcess> both_;
};

TEST_F(SideBySide, TheConsoleEndsBoth) {
    Start();
    Find("zelvarconfig");
    ASSERT_TRUE(both_->Send("quit"));
    EXPECT_EQ(End(), 0);
}

TEST_F(SideBySide, TheProgramEndsBothAndClosesItsWindowsWhenItIsAskedTo) {
    Start();
    const pid_t program = Find("zelvarconfig");
    // From here on it has its handlers: the simulated unit was up before it started.
    ASSERT_TRUE(Until([&] {
        std::ifstream status("/proc/" + std::to_string(program) + "/status");
        std::string word;
        while (status >> word) {
            if (word == "SigCgt:") {
                status >> word;
                return (std::stoull(word, nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
            }
        }
        return false;
    }));
    kill(program, SIGTERM);
    EXPECT_EQ(End(), 0);
}

TEST_F(SideBySide, ASignalEndsBoth) {
    Start();
    Find("zelvarconfig");
    for (const auto& [name, pid] : RunningWith(mark_)) {
        if (name == "bash") {
            kill(pid, SIGTERM);
        }
    }
    EXPECT_EQ(End(), 128 + SIGTERM);
}

TEST_F(SideBySide, ADisplayThatCannotBeReachedIsTold) {
    Start("xcb");
    EXPECT_EQ(End(), 128 + SIGABRT);
}

}  // namespace

}  // namespace zelvar::e2e
