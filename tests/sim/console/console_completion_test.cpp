// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/console_completion.h"

#include "sim/console/console.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using Words = std::vector<std::string>;

struct CompletionCase {
    const char* name;
    const char* line;
    Words words;
};

class CompletionOf : public testing::TestWithParam<CompletionCase> {
  protected:
    CompletionOf() : state_(Described()) {}

    static Layout Described() {
        Layout layout;
        layout.At(32).status = StatusByte(0, ModuleState::kOk);
        layout.At(4).status = StatusByte(1, ModuleState::kOk);
        layout.At(64).status = StatusByte(0, ModuleState::kOk);
        for (const char* name : {"Goods train", "Goods van", "Tram"}) {
            Train train;
            train.name = name;
            layout.track.trains.push_back(train);
        }
        for (const char* name : {"west", "north east"}) {
            TrackSection section;
            section.name = name;
            layout.track.sections.push_back(section);
        }
        return layout;
    }

    UnitState state_;
};

TEST_P(CompletionOf, Offers) {
    EXPECT_EQ(CompleteLine(state_, GetParam().line).words, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CompletionOf,
    testing::Values(
        CompletionCase{"Command", "fa", {"fault"}},
        CompletionCase{"CommandAfterSpaces", "  fa", {"fault"}},
        CompletionCase{"CommandsInTheOrderOfHelp", "sil", {"silent", "silent-after"}},
        CompletionCase{"Run", "ru", {"run"}}, CompletionCase{"RunHasANumber", "run ", {}},
        CompletionCase{"NoCommand", "xyz", {}}, CompletionCase{"Choice", "fault ", {"on", "off"}},
        CompletionCase{"ChoiceBegun", "fault of", {"off"}},
        CompletionCase{"NothingAfterTheLastArgument", "fault on ", {}},
        CompletionCase{"ThirdArgument", "speed 5 12 r", {"reverse"}},
        CompletionCase{"Digits", "feedback 5 ", {"0", "1"}},
        CompletionCase{"NumberWithoutList", "overcurrent ", {}},
        CompletionCase{"PresentModules", "module ", {"4", "32", "64"}},
        CompletionCase{"BothFormsAfterAModule", "module 32 ", {"absent", "status"}},
        CompletionCase{"TractionUnits", "ms ", {"0", "36"}},
        CompletionCase{"OptionalArgument", "help sil", {"silent", "silent-after"}},
        CompletionCase{"Trains", "place ", {"Goods train", "Goods van", "Tram"}},
        CompletionCase{"NamesWithSpaces", "place Goods ", {"Goods train", "Goods van"}},
        CompletionCase{"AfterASpaceOfAName", "place Goods v", {"Goods van"}},
        CompletionCase{"SectionsAfterATrain", "place Goods van ", {"west", "north east"}},
        CompletionCase{"SectionAfterATrain", "place Tram no", {"north east"}},
        CompletionCase{"NothingAfterBoth", "place Goods train north east ", {}},
        CompletionCase{"OfAnotherName", "? sil", {"silent", "silent-after"}},
        CompletionCase{"OfAnUnknownCommand", "nonsense o", {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(CompletionOf, EmptyLineOffersEveryCommand) {
    EXPECT_EQ(CompleteLine(state_, "").words, ConsoleCommandNames());
    EXPECT_EQ(CompleteLine(state_, "").words, CompleteLine(state_, "help ").words);
}

TEST_F(CompletionOf, KnowsWhatIsTypedAlready) {
    EXPECT_EQ(CompleteLine(state_, "speed 5 12 fo").begun, "fo");
    EXPECT_EQ(CompleteLine(state_, "spe").begun, "spe");
    EXPECT_EQ(CompleteLine(state_, "fault ").begun, "");
    EXPECT_EQ(CompleteLine(state_, "place  Goods  v").begun, "Goods v");
}

TEST(CompletionWords, FillTheTerminalDownItsColumns) {
    const Words words{"a", "bb", "c", "dd", "e"};
    EXPECT_EQ(InColumns(words, 80), "a   bb  c   dd  e\n");
    EXPECT_EQ(InColumns(words, 18), "a   bb  c   dd  e\n") << "no gap after the last";
    EXPECT_EQ(InColumns(words, 17), "a   c   e\nbb  dd\n");
    EXPECT_EQ(InColumns(words, 10), "a   c   e\nbb  dd\n");
    EXPECT_EQ(InColumns(words, 9), "a   dd\nbb  e\nc\n");
    EXPECT_EQ(InColumns(words, 1), "a\nbb\nc\ndd\ne\n");
    EXPECT_EQ(InColumns({"\xC3\xA9", "b"}, 4), "\xC3\xA9  b\n") << "characters, not bytes";
    EXPECT_EQ(InColumns({}, 80), "");
}

TEST(CompletionWords, CommonBeginningOfAll) {
    EXPECT_EQ(CommonBeginning({"silent", "silent-after"}), "silent");
    EXPECT_EQ(CommonBeginning({"short", "silent", "s"}), "s");
    EXPECT_EQ(CommonBeginning({"on", "off"}), "o");
    EXPECT_EQ(CommonBeginning({"fault", "hold"}), "");
    EXPECT_EQ(CommonBeginning({"fault"}), "fault");
    EXPECT_EQ(CommonBeginning({}), "");
}

}  // namespace
}  // namespace zelvar::sim
