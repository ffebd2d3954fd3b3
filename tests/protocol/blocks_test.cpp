// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/blocks.h"

#include <gtest/gtest.h>

#include "protocol/command_case.h"

namespace zelvar::testing {
namespace {

class BlockCommands : public ::testing::TestWithParam<CommandCase> {};

TEST_P(BlockCommands, HasTheValuesOfTheTable) {
    EXPECT_EQ(ValuesOf(GetParam().command), GetParam().values);
}

constexpr BlockPolarity kSame = BlockPolarity::Same;
constexpr BlockPolarity kInverted = BlockPolarity::Inverted;
constexpr UnlinkDirection kDown = UnlinkDirection::Down;
constexpr UnlinkDirection kUp = UnlinkDirection::Up;

const std::vector<CommandCase> kCases{
    {"Link3And4", LinkBlocks(3, 4, kSame), {58, 3, 2, 4}},
    {"Link0And255", LinkBlocks(0, 255, kSame), {58, 0, 3, 127}},
    {"Link127And128", LinkBlocks(127, 128, kSame), {58, 127, 3, 0}},
    {"Link128And127", LinkBlocks(128, 127, kSame), {59, 0, 2, 127}},
    {"LinkInverted0And0", LinkBlocks(0, 0, kInverted), {58, 0, 6, 0}},
    {"LinkInverted130And200", LinkBlocks(130, 200, kInverted), {59, 2, 7, 72}},
    {"UnlinkDown10", UnlinkBlocks(10, kDown, false), {56, 10, 0}},
    {"UnlinkDown10Clearing", UnlinkBlocks(10, kDown, true), {56, 10, 2}},
    {"UnlinkUp10Clearing", UnlinkBlocks(10, kUp, true), {56, 10, 6}},
    {"UnlinkUp127", UnlinkBlocks(127, kUp, false), {56, 127, 4}},
    {"UnlinkUp128", UnlinkBlocks(128, kUp, false), {57, 0, 4}},
    {"UnlinkDown255", UnlinkBlocks(255, kDown, false), {57, 127, 0}},
    {"Clear0", ClearBlock(0), {62, 0, 18}},
    {"Clear127", ClearBlock(127), {62, 127, 18}},
    {"Clear128", ClearBlock(128), {63, 0, 18}},
    {"Clear129", ClearBlock(129), {63, 1, 18}},
    {"Clear255", ClearBlock(255), {63, 127, 18}},
};
INSTANTIATE_TEST_SUITE_P(All, BlockCommands, ::testing::ValuesIn(kCases), CaseName);

}  // namespace
}  // namespace zelvar::testing
