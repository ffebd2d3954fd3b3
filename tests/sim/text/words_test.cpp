// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/text/words.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

using Words = std::vector<std::string>;

TEST(WordsTest, AreSplitAtWhiteSpace) {
    EXPECT_EQ(SplitWords("  speed\t5  12 \r"), (Words{"speed", "5", "12"}));
    EXPECT_EQ(SplitWords(" \t "), Words{});
}

TEST(WordsTest, AreJoinedAsInASentence) {
    EXPECT_EQ(JoinedWith(Words{"a", "b", "c"}, "or"), "a, b or c");
    EXPECT_EQ(JoinedWith(Words{"a", "b"}, "and"), "a and b");
    EXPECT_EQ(JoinedWith(Words{"a"}, "or"), "a");
    EXPECT_EQ(JoinedWith(Words{}, "or"), "");
}

struct NearestCase {
    const char* name;
    const char* word;
    std::optional<std::string> nearest;
};

class NearestWordOf : public testing::TestWithParam<NearestCase> {};

TEST_P(NearestWordOf, IsTheLikeliestOne) {
    EXPECT_EQ(NearestWord(GetParam().word,
                          Words{"hold", "fault", "feedback", "help", "drip", "ms", "run"}),
              GetParam().nearest);
}

INSTANTIATE_TEST_SUITE_P(Words, NearestWordOf,
                         testing::Values(NearestCase{"TheWordItself", "hold", "hold"},
                                         NearestCase{"LettersSwapped", "fualt", "fault"},
                                         NearestCase{"LetterMissing", "fedback", "feedback"},
                                         NearestCase{"LetterTooMany", "dripp", "drip"},
                                         NearestCase{"OtherLetter", "rum", "run"},
                                         NearestCase{"TwoMistakes", "feetbak", "feedback"},
                                         NearestCase{"TheNearer", "halp", "help"},
                                         NearestCase{"Nothing", "", std::nullopt},
                                         NearestCase{"OneLetter", "x", std::nullopt},
                                         NearestCase{"Nonsense", "nonsense", std::nullopt},
                                         NearestCase{"Short", "up", std::nullopt}),
                         [](const auto& row) { return row.param.name; });

TEST(WrappedTest, BreaksBetweenWordsAndIndentsWhatFollows) {
    EXPECT_EQ(Wrapped("one two  three", 12, 4), "one two\n    three");
    EXPECT_EQ(Wrapped("one two three", 11, 4), "one two\n    three");
    EXPECT_EQ(Wrapped("one two three", 10, 4), "one\n    two\n    three");
    EXPECT_EQ(Wrapped("unbreakable", 5, 2), "unbreakable");
    EXPECT_EQ(Wrapped("", 5, 2), "");
}

}  // namespace
}  // namespace zelvar::sim
