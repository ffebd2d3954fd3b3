// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "console_completion.h"

#include "console.h"
#include "unit_fixture.h"

namespace zelvar::sim {
namespace {

using Words = std::vector<std::string>;

struct CompletionCase {
    const char* name;
    const char* line;
    Words words;
};

class Completion : public testing::TestWithParam<CompletionCase> {
  protected:
    Completion() : state_(Described()) {}

    static Layout Described() {
        Layout layout;
        layout.At(32).status = StatusByte(0, ModuleState::kOk);
        layout.At(4).status = StatusByte(1, ModuleState::kOk);
        layout.At(64).status = StatusByte(0, ModuleState::kOk);
        return layout;
    }

    UnitState state_;
};

TEST_P(Completion, Offers) {
    EXPECT_EQ(CompleteLine(state_, GetParam().line), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Completion,
    testing::Values(CompletionCase{"Command", "fa", {"fault"}},
                    CompletionCase{"CommandBehindBlanks", "  fa", {"fault"}},
                    CompletionCase{"CommandsInOrder",
                                   "s",
                                   {"short", "silent", "silent-after", "speed", "state", "stray"}},
                    CompletionCase{"NoCommand", "xyz", {}},
                    CompletionCase{"Choice", "fault ", {"on", "off"}},
                    CompletionCase{"ChoiceBegun", "fault of", {"off"}},
                    CompletionCase{"NothingBehindTheLastArgument", "fault on ", {}},
                    CompletionCase{"ThirdArgument", "speed 5 12 r", {"reverse"}},
                    CompletionCase{"Digits", "feedback 5 ", {"0", "1"}},
                    CompletionCase{"PlaceholderWithoutNames", "overcurrent ", {}},
                    CompletionCase{"PresentModules", "module ", {"4", "32", "64"}},
                    CompletionCase{"BehindAModule", "module 32 ", {"absent", "status"}},
                    CompletionCase{"TractionUnits", "ms ", {"0", "36"}},
                    CompletionCase{"OptionalArgument", "help sil", {"silent", "silent-after"}},
                    CompletionCase{"OfAnUnknownCommand", "nonsense o", {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Completion, EmptyLineOffersEveryCommand) {
    std::size_t commands = 0;
    for (const auto table : ConsoleTables()) {
        commands += table.size();
    }
    EXPECT_EQ(CompleteLine(state_, "").size(), commands);
}

TEST(CompletionWords, LastWordEndsTheLine) {
    EXPECT_EQ(LastWord("speed 5 fo"), "fo");
    EXPECT_EQ(LastWord("speed"), "speed");
    EXPECT_EQ(LastWord("speed "), "");
    EXPECT_EQ(LastWord(""), "");
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
