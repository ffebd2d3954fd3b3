// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/locomotives.h"
#include "protocol/reports.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

constexpr int kTopSpeed = 63;
/// How long one speed step takes with acceleration 1.
constexpr std::chrono::milliseconds kStep{10};

struct AnalogRow {
    const char* name;
    int block;
    int speed;
    bool forward;
    int acceleration;
};

/// "Block200Speed40ReverseAcceleration12": the unit's block 200 runs to -40 in steps of 12.
const AnalogRow kAnalogRows[] = {
    {"FirstBlockStands", 0, 0, true, 0},
    {"FirstBlockCrawls", 0, 1, true, 0},
    {"FirstBlockAtTop", 0, 63, true, 0},
    {"FirstBlockAtTopReverse", 0, 63, false, 0},
    {"LastLowBlock", 127, 32, false, 0},
    {"FirstHighBlock", 128, 31, true, 0},
    {"LastBlock", 255, 63, false, 0},
    {"LastBlockCrawlsReverse", 255, 1, false, 0},
    {"SlowestAcceleration", 5, 63, true, 127},
    {"FastestAcceleration", 5, 63, true, 1},
    {"Block200Speed40ReverseAcceleration12", 200, 40, false, 12},
    {"LastBlockWithAcceleration", 255, 2, false, 64},
};

class AnalogTwin : public TwinLink, public ::testing::WithParamInterface<AnalogRow> {
  protected:
    const sim::Block& BlockOf(int number) {
        return port.state().drive.blocks()[static_cast<std::size_t>(number)];
    }
};

TEST_P(AnalogTwin, TheBlockRunsAsMeantAndNoOther) {
    const auto& [name, block, speed, forward, acceleration] = GetParam();
    const Changes changes =
        EffectOf(acceleration == 0 ? AnalogSpeed(block, speed, forward)
                                   : AnalogSpeedRamp(block, speed, forward, acceleration));
    const std::string prefix = "block." + std::to_string(block);
    Changes meant;
    if (speed != 0) {
        meant[prefix + ".target"] = forward ? speed : -speed;
    }
    if (!forward) {
        meant[prefix + ".forward"] = 0;
    }
    EXPECT_EQ(changes, meant);
}

TEST_P(AnalogTwin, TheSpeedIsReachedInTheTimeOfTheAcceleration) {
    const auto& [name, block, speed, forward, acceleration] = GetParam();
    Do(acceleration == 0 ? AnalogSpeed(block, speed, forward)
                         : AnalogSpeedRamp(block, speed, forward, acceleration));
    const int sign = forward ? 1 : -1;
    if (acceleration == 0) {
        EXPECT_EQ(BlockOf(block).speed.speed(), sign * speed);
        return;
    }
    const auto step = acceleration * kStep;
    // The command has reached the unit a moment ago.
    port.Pass(step * speed - step / 2);
    EXPECT_EQ(BlockOf(block).speed.speed(), sign * (speed - 1));
    port.Pass(step / 2);
    EXPECT_EQ(BlockOf(block).speed.speed(), sign * speed);
    port.Pass(step);
    EXPECT_EQ(BlockOf(block).speed.speed(), sign * speed);
}

TEST_P(AnalogTwin, TheReportOfTheBlockReadsAsItRuns) {
    const auto& [name, block, speed, forward, acceleration] = GetParam();
    Do(AnalogSpeed(block, speed, forward));
    if (speed == 0) {
        return;  // it stood before
    }
    Do(kEmptyTransaction);
    ASSERT_TRUE(MatchesReply(ReplyKind::BlockSpeed, *reply));
    EXPECT_EQ(ReadBlockSpeedReport(*reply), (BlockSpeedReport{block, speed, forward}));
}

INSTANTIATE_TEST_SUITE_P(Rows, AnalogTwin, ::testing::ValuesIn(kAnalogRows), NameOf<AnalogRow>);

class AnalogTwinRange : public AnalogTwin {};

TEST_F(AnalogTwinRange, EveryBlockTakesEverySpeedInBothDirections) {
    for (int speed = 0; speed <= kTopSpeed; ++speed) {
        for (const bool forward : {true, false}) {
            // Each block gets a speed of its own, so that a mix-up of blocks shows.
            const auto speedOf = [&](int block) { return (speed + block) % (kTopSpeed + 1); };
            for (int block = 0; block < sim::kBlocks; ++block) {
                Do(AnalogSpeed(block, speedOf(block), forward));
            }
            for (int block = 0; block < sim::kBlocks; ++block) {
                const int meant = forward ? speedOf(block) : -speedOf(block);
                ASSERT_EQ(BlockOf(block).speed.target(), meant) << block;
                ASSERT_EQ(BlockOf(block).forward, forward) << block;
            }
        }
    }
}

TEST_F(AnalogTwinRange, TheLightOfEveryBlockIsItsOwnAndLeavesTheSpeedAlone) {
    for (int block = 0; block < sim::kBlocks; ++block) {
        const std::string light = "block." + std::to_string(block) + ".light";
        ASSERT_EQ(EffectOf(AnalogLight(block, true)), (Changes{{light, 1}}));
        ASSERT_EQ(EffectOf(AnalogLight(block, true)), Changes{});
        ASSERT_EQ(EffectOf(AnalogLight(block, false)), (Changes{{light, 0}}));
    }
}

TEST_F(AnalogTwinRange, TheHfiOfTheSystemTakesEveryLevel) {
    for (int level = 15; level >= 0; --level) {
        ASSERT_EQ(EffectOf(SetHfi(level)), (Changes{{"hfi", level}}));
    }
}

TEST_F(AnalogTwinRange, SpeedZeroStopsAtOnceWhateverTheRamp) {
    Do(AnalogSpeed(40, 50, false));
    Do(AnalogSpeedRamp(40, 63, false, 127));
    EXPECT_EQ(EffectOf(AnalogSpeed(40, 0, false)), (Changes{{"block.40.target", 0}}));
    EXPECT_EQ(BlockOf(40).speed.speed(), 0);
    EXPECT_FALSE(BlockOf(40).forward) << "the direction is kept";
}

}  // namespace
}  // namespace zelvar::twin
