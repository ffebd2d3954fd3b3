// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

#include <iostream>

namespace zelvar::e2e {

namespace {

/// Fifteen times the interval at which the program polls.
constexpr Milliseconds kNoPollFor{300};
constexpr Milliseconds kRestFor{1000};
constexpr Milliseconds kMostCpuTime{300};

}  // namespace

BoxText NoResponseBox() {
    return {"ZelvarConfig", "warning", "No response from Zelvar", "OK"};
}

BoxText SelectPortBox() {
    return {"ZelvarConfig", "warning", "Please select Comm-Port", "OK"};
}

void Journey::Start(const std::vector<std::string>& unitOptions) {
    unit.emplace(folder, unitOptions);
    program.emplace(folder, unit->Device());
}

void Journey::StartAndOpen(const std::vector<std::string>& unitOptions) {
    Start(unitOptions);
    program->Choose("cboPort", "1");
    ASSERT_EQ(program->TextOf("lblBarDevice"), "Port 1: " + unit->Device() + ", 19k2");
}

void Journey::StartAndPoll(const std::vector<std::string>& unitOptions) {
    StartAndOpen(unitOptions);
    program->Click("cmdReset");
    ASSERT_TRUE(program->Shows("lblBarStatus", "System Status = Stop"));
    ASSERT_TRUE(Polls());
}

void Journey::ExpectRecovery() {
    const int resets = unit->Count("command.fault-reset");
    program->Click("cmdReset");
    EXPECT_EQ(program->Box(), BoxText());
    EXPECT_EQ(unit->Count("command.fault-reset"), resets + 1);
    EXPECT_TRUE(Polls());
}

void Journey::RequestStatus(const std::string& view) {
    program->Click("cmdStatus");
    ASSERT_TRUE(program->Says({"window", view}, "visible"));
}

void Journey::TearDown() {
    if (HasFailure() && program && unit) {
        std::cout << program->Process().Describe() << '\n';
        if (unit->Process().IsRunning()) {
            for (const std::string& line : unit->Do("dump")) {
                if (line.starts_with("frames=") || line.starts_with("command.")) {
                    std::cout << "unit: " << line << '\n';
                }
            }
        }
    }
}

::testing::AssertionResult Journey::Polls() {
    const int polls = unit->Count("command.poll");
    if (Until([&] { return unit->Count("command.poll") > polls + 2; })) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "the program does not poll";
}

::testing::AssertionResult Journey::DoesNotPoll() {
    const int frames = Frames();
    if (Stays([&] { return Frames() == frames; }, kNoPollFor)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "the program still sends";
}

::testing::AssertionResult Journey::Rests() {
    // Asking would cost the program time: nothing is asked meanwhile.
    const Milliseconds before = program->Process().CpuTime();
    const Instant start = Now();
    QTest::qWait(static_cast<int>(kRestFor.count()));
    const Milliseconds spent = program->Process().CpuTime() - before;
    if (spent <= kMostCpuTime) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "the program spent " << spent.count() << " ms of "
                                         << Since(start).count() << " ms on a processor";
}

}  // namespace zelvar::e2e
