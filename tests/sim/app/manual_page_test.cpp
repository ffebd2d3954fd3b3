// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The manual page and the help say what the program's own tables say.
#include <gtest/gtest.h>

#include <fstream>
#include <gmock/gmock.h>
#include <regex>
#include <sstream>

#include "sim/app/options.h"
#include "sim/console/console.h"
#include "sim/layouts/layout_problems.h"

namespace zelvar::sim {
namespace {

/// The page without its font changes and escapes.
std::string PlainPage() {
    std::ifstream file(ZELVAR_MANUAL_PAGE);
    std::ostringstream text;
    text << file.rdbuf();
    const std::string unfonted = std::regex_replace(text.str(), std::regex(R"(\\f[A-Z])"), "");
    return std::regex_replace(unfonted, std::regex(R"(\\-)"), "-");
}

/// The headings of a section's paragraphs: the lines after .TP.
std::vector<std::string> Heads(const std::string& section) {
    std::istringstream lines(PlainPage());
    std::vector<std::string> heads;
    bool inside = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(".SH ")) {
            inside = line == ".SH " + section;
        } else if (inside && line == ".TP" && std::getline(lines, line)) {
            heads.push_back(line);
        }
    }
    return heads;
}

TEST(ManualPageTest, ListsEveryOptionAndNoOther) {
    EXPECT_EQ(Heads("OPTIONS"), OptionForms());
}

TEST(ManualPageTest, ListsEveryConsoleCommandAndNoOther) {
    std::vector<std::string> forms;
    for (const ConsoleGroup& group : ConsoleGroups()) {
        for (const ConsoleCommand& command : group.commands) {
            forms.push_back(CommandForm(command));
        }
    }
    EXPECT_EQ(Heads("CONSOLE"), forms);
}

/// So the ranges stand in two places, and a wrong one shows.
TEST(ManualPageTest, DescribesEveryConsoleCommandAsHelpDoes) {
    const std::string page = PlainPage();
    for (const ConsoleGroup& group : ConsoleGroups()) {
        for (const ConsoleCommand& command : group.commands) {
            EXPECT_THAT(page, testing::HasSubstr("\n.TP\n" + CommandForm(command) + "\n" +
                                                 CommandHelp(command) + "\n"));
        }
    }
}

TEST(ManualPageTest, ShowsALayoutThatIsRight) {
    const std::string page = PlainPage();
    const std::string opening = "\n.EX\n";
    const std::size_t begin = page.find(opening);
    ASSERT_NE(begin, std::string::npos);
    const std::string example =
        page.substr(begin + opening.size(), page.find(".EE", begin) - begin - opening.size());
    EXPECT_NE(example.find("[[train]]"), std::string::npos);
    EXPECT_EQ(ProblemsOf(example), std::vector<std::string>{});
}

TEST(HelpTest, ListsEveryOption) {
    const std::string help = UsageText();
    for (const std::string& form : OptionForms()) {
        EXPECT_THAT(help, testing::AnyOf(testing::HasSubstr("\n  " + form + " "),
                                         testing::HasSubstr("\n  -h," + form + " ")));
    }
}

TEST(HelpTest, FitsATerminal) {
    constexpr std::size_t kColumns = 80;
    std::istringstream lines(UsageText());
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), kColumns) << line;
    }
}

}  // namespace
}  // namespace zelvar::sim
