// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// docs/layouts.md says what the reader does.
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "sim/layouts/layout_problems.h"

namespace zelvar::sim {
namespace {

std::string Reference() {
    std::ifstream file(ZELVAR_LAYOUT_REFERENCE);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The first indented block after a heading, without its indentation.
std::string ExampleUnder(const std::string& heading) {
    std::istringstream lines(Reference());
    std::string line;
    while (std::getline(lines, line) && line != "## " + heading) {
    }
    const std::string indentation(4, ' ');
    std::string example;
    while (std::getline(lines, line)) {
        if (line.starts_with(indentation)) {
            example += line.substr(indentation.size()) + '\n';
        } else if (line.empty() && !example.empty()) {
            example += '\n';
        } else if (!example.empty()) {
            break;
        }
    }
    return example.substr(0, example.find_last_not_of('\n') + 1) + '\n';
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    const std::size_t at = text.find(what);
    return at == std::string::npos ? "" : text.replace(at, what.size(), with);
}

TEST(LayoutReferenceTest, ShowsALayoutThatIsRight) {
    const std::string example = ExampleUnder("A first layout");
    EXPECT_NE(example.find("[[train]]"), std::string::npos);
    EXPECT_EQ(ProblemsOf(example), std::vector<std::string>{});
}

TEST(LayoutReferenceTest, ShowsTheMessagesOfItsMistakes) {
    std::string wrong = Replaced(ExampleUnder("A first layout"), "channel = 0", "channel = 7");
    wrong = Replaced(wrong, "length = 150", "lenght = 150");
    std::string messages;
    for (const std::string& problem : ProblemsOf(wrong)) {
        messages += "attic.toml:" + problem + '\n';
    }
    EXPECT_EQ(ExampleUnder("When something is wrong"), messages);
}

TEST(LayoutReferenceTest, ShowsListsThatAreRight) {
    EXPECT_EQ(ProblemsOf(ExampleUnder("Long lists")), std::vector<std::string>{});
}

struct TableCase {
    const char* name;
    const char* text;  // one table with a key "x" that it does not have
};

class ReferencedTables : public testing::TestWithParam<TableCase> {};

TEST_P(ReferencedTables, HaveALineForEachKey) {
    std::string known;
    for (const std::string& problem : ProblemsOf(GetParam().text)) {
        std::smatch match;
        if (std::regex_match(problem, match, std::regex(R"(.*unknown key "x": expected (.*))"))) {
            known = match[1];
        }
    }
    ASSERT_NE(known, "");
    const std::string reference = Reference();
    const std::regex words("[a-z-]+");
    for (std::sregex_iterator word(known.begin(), known.end(), words), end; word != end; ++word) {
        if (word->str() != "or") {
            EXPECT_NE(reference.find("| `" + word->str() + "` |"), std::string::npos)
                << word->str();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, ReferencedTables,
                         testing::Values(TableCase{"Unit", "[unit]\nx=1"},
                                         TableCase{"Traction", "[[traction-module]]\nx=1"},
                                         TableCase{"Points", "[[point-module]]\nx=1"},
                                         TableCase{"Signals", "[[signal-module]]\nx=1"},
                                         TableCase{"Section", "[[section]]\nx=1"},
                                         TableCase{"Train", "[[train]]\ncontrol=\"dcc\"\nx=1"}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace zelvar::sim
