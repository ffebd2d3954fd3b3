// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/blocks.h"
#include "protocol/locomotives.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

std::string LinkName(int first, int second) {
    return "link." + std::to_string(first) + '.' + std::to_string(second);
}

struct LinkRow {
    const char* name;
    int first;
    int second;
};

const LinkRow kLinkRows[] = {
    {"FirstTwo", 0, 1},      {"Neighbours", 3, 4},   {"LowToHigh", 127, 128},
    {"HighToLow", 128, 127}, {"BothHigh", 130, 200}, {"FirstToLast", 0, 255},
    {"LastToFirst", 255, 0}, {"LastTwo", 254, 255},
};

class BlockLinkTwin : public TwinLink, public ::testing::WithParamInterface<LinkRow> {};

TEST_P(BlockLinkTwin, LinksAsMeant) {
    const auto& [name, first, second] = GetParam();
    EXPECT_EQ(EffectOf(LinkBlocks(first, second, BlockPolarity::Same)),
              (Changes{{LinkName(first, second), 0}}));
    port.Connect(EveryKind());
    EXPECT_EQ(EffectOf(LinkBlocks(first, second, BlockPolarity::Inverted)),
              (Changes{{LinkName(first, second), 1},
                       {"block." + std::to_string(second) + ".forward", 0}}));
}

TEST_P(BlockLinkTwin, LinkedBlocksRunTogetherTheInvertedOneTheOtherWay) {
    const auto& [name, first, second] = GetParam();
    const auto target = [](int block) { return "block." + std::to_string(block) + ".target"; };
    Do(LinkBlocks(first, second, BlockPolarity::Same));
    EXPECT_EQ(EffectOf(AnalogSpeed(first, 20, true)),
              (Changes{{target(first), 20}, {target(second), 20}}));
    port.Connect(EveryKind());
    Do(LinkBlocks(first, second, BlockPolarity::Inverted));
    EXPECT_EQ(EffectOf(AnalogSpeed(first, 20, true)),
              (Changes{{target(first), 20}, {target(second), -20}}));
}

TEST_P(BlockLinkTwin, UnlinkUpEndsWhereTheBlockIsFirstUnlinkDownWhereItIsSecond) {
    const auto& [name, first, second] = GetParam();
    const Changes gone{{LinkName(first, second), kGone}};
    Do(LinkBlocks(first, second, BlockPolarity::Same));
    EXPECT_EQ(EffectOf(UnlinkBlocks(first, UnlinkDirection::Down, false)), Changes{});
    EXPECT_EQ(EffectOf(UnlinkBlocks(second, UnlinkDirection::Up, false)), Changes{});
    EXPECT_EQ(EffectOf(UnlinkBlocks(first, UnlinkDirection::Up, false)), gone);
    Do(LinkBlocks(first, second, BlockPolarity::Same));
    EXPECT_EQ(EffectOf(UnlinkBlocks(second, UnlinkDirection::Down, false)), gone);
}

TEST_P(BlockLinkTwin, UnlinkedBlocksAreClearedOnlyWhenAsked) {
    const auto& [name, first, second] = GetParam();
    const std::string other = "block." + std::to_string(second) + ".target";
    for (const bool clear : {false, true}) {
        port.Connect(EveryKind());
        Do(LinkBlocks(first, second, BlockPolarity::Same));
        Do(AnalogSpeed(first, 30, true));
        Changes meant{{LinkName(first, second), kGone}};
        if (clear) {
            meant[other] = 0;
        }
        EXPECT_EQ(EffectOf(UnlinkBlocks(first, UnlinkDirection::Up, clear)), meant);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, BlockLinkTwin, ::testing::ValuesIn(kLinkRows), NameOf<LinkRow>);

class ClearBlockTwin : public TwinLink {};

TEST_F(ClearBlockTwin, EveryBlockIsClearedAlone) {
    for (int block = 0; block < sim::kBlocks; ++block) {
        const std::string name = "block." + std::to_string(block);
        Do(AnalogSpeed(block, 33, false));
        Do(AnalogSpeed((block + 1) % sim::kBlocks, 12, true));
        Do(AnalogLight(block, true));
        ASSERT_EQ(EffectOf(ClearBlock(block)),
                  (Changes{{name + ".target", 0}, {name + ".forward", 1}, {name + ".light", 0}}));
    }
}

TEST_F(ClearBlockTwin, TheDccLocomotiveInTheBlockStandsForwardAndDark) {
    Do(DccSpeed(DccSteps::k126, 129, 100, false, {3, false}));
    Do(*DccFunctions(0, 100, DccFunctionSet().set(), {3, false}));
    Do(DccSpeed(DccSteps::k126, 129, 100, false, {3, false}));
    Do(DccSpeed(DccSteps::k126, 128, 100, false, {4, false}));
    EXPECT_EQ(EffectOf(ClearBlock(129)), (Changes{{"dcc.short.3.speed", 0},
                                                  {"dcc.short.3.forward", 1},
                                                  {"dcc.short.3.functions", 0}}));
}

}  // namespace
}  // namespace zelvar::twin
