// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// What every row of the console's groups must have, and how `help` shows it.
#include <gmock/gmock.h>

#include "sim/console/console_fixture.h"
#include "sim/text/number.h"

namespace zelvar::sim {
namespace {

using testing::HasSubstr;

/// The layout of `zelvarsim` without any option.
Layout ClubLayout() {
    return LayoutOf(ZELVAR_SHIPPED_LAYOUTS "/club.toml");
}

std::vector<const ConsoleCommand*> AllCommands() {
    std::vector<const ConsoleCommand*> all;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        for (const ConsoleCommand& command : group.commands) {
            all.push_back(&command);
        }
    }
    return all;
}

using ConsoleHelp = ConsoleFixture<UnitFixture>;

TEST_F(ConsoleHelp, EveryCommandHasASentenceAndAnExampleThatWorksOnTheClubLayout) {
    unit_ = CentralUnit(ClubLayout());
    for (const ConsoleCommand* command : AllCommands()) {
        unit_.SetTimeFactor(0, now_);  // as "run" needs it
        EXPECT_TRUE(command->help.ends_with('.')) << command->name;
        EXPECT_EQ(SplitWords(command->example).at(0), command->name);
        EXPECT_TRUE(Answer(command->example).ends_with("ok")) << Answer(command->example);
    }
}

TEST_F(ConsoleHelp, TheExampleOfAPointMovesOneOnTheClubTrack) {
    const std::string_view example = ConsoleFormsOf("point").at(0)->example;
    const int point = *ParseInt(SplitWords(example).at(1), 0, 511);
    bool found = false;
    for (const TrackSection& section : ClubLayout().track.sections) {
        found = found || section.front.point == point || section.back.point == point;
    }
    EXPECT_TRUE(found) << point;
}

TEST_F(ConsoleHelp, ListsEveryCommandInItsGroup) {
    const std::string help = Answer("help");
    std::size_t from = 0;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        from = help.find(std::string(group.title) + "\n", from);
        ASSERT_NE(from, std::string::npos) << group.title;
        for (const ConsoleCommand& command : group.commands) {
            from = help.find("\n  " + CommandForm(command) + "  ", from);
            ASSERT_NE(from, std::string::npos) << CommandForm(command);
        }
    }
    EXPECT_TRUE(help.ends_with("\nok"));
}

TEST_F(ConsoleHelp, FitsATerminal) {
    std::string text = Answer("help");
    for (const std::string& name : ConsoleCommandNames()) {
        text += Answer("help " + name);
    }
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), 80U) << line;
    }
}

TEST_F(ConsoleHelp, OfOneCommandHasItsRangesAndAnExampleOfEachForm) {
    EXPECT_EQ(Answer("help speed"),
              "speed B S forward|reverse\n"
              "  Sets and reports speed S of block B. B 0..255, S 0..63.\n"
              "  Example: speed 5 12 forward\n"
              "ok");
    EXPECT_THAT(Answer("help module"), HasSubstr("\n  Example: module 32 absent\n"
                                                 "module ADDRESS status BYTE\n"));
}

TEST_F(ConsoleHelp, HasAnotherName) {
    EXPECT_EQ(Answer("?"), Answer("help"));
    EXPECT_EQ(Answer("? speed"), Answer("help speed"));
}

TEST_F(ConsoleHelp, OfAnUnknownCommandNamesTheNearest) {
    EXPECT_EQ(Answer("help sped"), "error unknown command sped; did you mean speed?");
}

}  // namespace
}  // namespace zelvar::sim
