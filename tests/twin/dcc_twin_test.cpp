// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/locomotives.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

constexpr int kLastDecoder = 10239;

/// The locomotive as it is once everything about it has been said.
Changes Locomotive(const std::string& decoder, int block, int steps, int speed, bool forward,
                   bool emergencyStop = false, int functions = 0) {
    const std::string name = "dcc." + decoder;
    return {{name + ".steps", steps},     {name + ".speed", speed},
            {name + ".forward", forward}, {name + ".emergency-stop", emergencyStop},
            {name + ".block", block},     {name + ".functions", functions}};
}

struct DccRow {
    const char* name;
    DccAddress address;
    /// The addressed decoder: a long address is another decoder than the same short one.
    const char* decoder;
};

const DccRow kDccRows[] = {
    {"FirstShort", {1, false}, "short.1"},
    {"FirstAsLong", {1, true}, "long.1"},
    {"ThirdShort", {3, false}, "short.3"},
    {"LastShort", {127, false}, "short.127"},
    {"LastShortAsLong", {127, true}, "long.127"},
    {"FirstThatIsLong", {128, false}, "long.128"},
    {"LongAnyway", {128, true}, "long.128"},
    {"Thousand", {1000, false}, "long.1000"},
    {"BelowTheLastHundredTwentyEight", {10111, false}, "long.10111"},
    {"Last", {kLastDecoder, false}, "long.10239"},
};

class DccTwin : public TwinLink, public ::testing::WithParamInterface<DccRow> {};

TEST_P(DccTwin, RunsAtEverySpeedOf28) {
    for (const bool forward : {true, false}) {
        for (const int block : {0, 1, 127, 128, 200, 255}) {
            for (int speed = 0; speed <= kDccTopSpeed28; ++speed) {
                port.Connect(EveryKind());
                ASSERT_EQ(
                    EffectOf(DccSpeed(DccSteps::k28, block, speed, forward, GetParam().address)),
                    Locomotive(GetParam().decoder, block, 28, speed, forward));
            }
        }
    }
}

TEST_P(DccTwin, RunsAtEverySpeedOf126) {
    for (const bool forward : {true, false}) {
        for (const int block : {0, 127, 128, 255}) {
            for (int speed = 0; speed <= kDccTopSpeed126; ++speed) {
                port.Connect(EveryKind());
                ASSERT_EQ(
                    EffectOf(DccSpeed(DccSteps::k126, block, speed, forward, GetParam().address)),
                    Locomotive(GetParam().decoder, block, 126, speed, forward));
            }
        }
    }
}

TEST_P(DccTwin, StopsAtOnceAndKeepsItsDirection) {
    const std::string name = std::string("dcc.") + GetParam().decoder;
    for (const DccSteps steps : {DccSteps::k28, DccSteps::k126}) {
        for (const bool forward : {true, false}) {
            for (const int block : {0, 255}) {
                port.Connect(EveryKind());
                Do(DccSpeed(steps, block, 20, forward, GetParam().address));
                ASSERT_EQ(EffectOf(DccEstop(steps, block, forward, GetParam().address)),
                          (Changes{{name + ".speed", 0}, {name + ".emergency-stop", 1}}));
                ASSERT_EQ(EffectOf(DccSpeed(steps, block, 1, forward, GetParam().address)),
                          (Changes{{name + ".speed", 1}, {name + ".emergency-stop", 0}}));
            }
        }
    }
}

/// The group whose button sets a function: light and F1 to F4, F5 to F8, F9 to F12, F13 to F20,
/// F21 to F28.
int GroupOf(int function) {
    constexpr int kLasts[] = {4, 8, 12, 20, 28};
    int group = 0;
    while (function > kLasts[group]) {
        ++group;
    }
    return group;
}

TEST_P(DccTwin, EachFunctionIsSwitchedOnAndOffAlone) {
    const std::string functions = std::string("dcc.") + GetParam().decoder + ".functions";
    Do(DccSpeed(DccSteps::k28, 99, 5, true, GetParam().address));
    for (int function = 0; function <= 28; ++function) {
        DccFunctionSet ticked;
        ticked.set(static_cast<std::size_t>(function));
        const auto on = DccFunctions(GroupOf(function), 99, ticked, GetParam().address);
        ASSERT_TRUE(on);
        ASSERT_EQ(EffectOf(*on), (Changes{{functions, 1 << function}})) << function;
        const auto off = DccFunctions(GroupOf(function), 99, {}, GetParam().address);
        ASSERT_EQ(EffectOf(*off), (Changes{{functions, 0}})) << function;
    }
}

TEST_P(DccTwin, AGroupLeavesTheOthersAsTheyAre) {
    const std::string functions = std::string("dcc.") + GetParam().decoder + ".functions";
    Do(DccSpeed(DccSteps::k28, 127, 5, true, GetParam().address));
    const DccFunctionSet all = DccFunctionSet().set();
    const int masks[] = {0x1F, 0x1FF, 0x1FFF, 0x1FFFFF, 0x1FFFFFFF};
    for (int group = 0; group < kDccFunctionGroups; ++group) {
        ASSERT_EQ(EffectOf(*DccFunctions(group, 127, all, GetParam().address)),
                  (Changes{{functions, masks[group]}}));
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, DccTwin, ::testing::ValuesIn(kDccRows), NameOf<DccRow>);

class DccTwinRange : public TwinLink {
  protected:
    const sim::DccLocomotive* Find(int address, bool isLong) {
        const auto& all = port.state().drive.dcc();
        const auto found = all.find({address, isLong});
        return found == all.end() ? nullptr : &found->second;
    }
};

TEST_F(DccTwinRange, EveryAddressReachesItsDecoderInBothForms) {
    for (int address = 1; address <= kLastDecoder; ++address) {
        const int speed = address % (kDccTopSpeed28 + 1);
        for (const bool forceLong : {false, true}) {
            Do(DccSpeed(DccSteps::k28, 0, speed, forceLong, {address, forceLong}));
        }
        const bool hasShort = address <= 127;
        ASSERT_EQ(Find(address, false) != nullptr, hasShort) << address;
        ASSERT_NE(Find(address, true), nullptr) << address;
        EXPECT_EQ(Find(address, true)->speed, speed);
        EXPECT_TRUE(Find(address, true)->forward);
        if (hasShort) {
            EXPECT_EQ(Find(address, false)->speed, speed);
            EXPECT_FALSE(Find(address, false)->forward);
        }
    }
    EXPECT_EQ(port.state().drive.dcc().size(), static_cast<std::size_t>(kLastDecoder + 127));
}

TEST_F(DccTwinRange, FunctionsNameEveryBlockTheyCan) {
    for (int group = 0; group < kDccFunctionGroups; ++group) {
        for (int block = 0; block <= 127; ++block) {
            Do(*DccFunctions(group, block, {}, {7, false}));
            ASSERT_EQ(Find(7, false)->block, block);
        }
    }
}

// The functions carry the block in one value, which ends at 127; this is intentional.
TEST_F(DccTwinRange, FunctionsInABlockAbove127DoNotLeaveAndTheLineStaysGood) {
    const testing::ShownBox overflow{"Overflow", BoxIcon::Critical, BoxButtons::Ok};
    for (int group = 0; group < kDccFunctionGroups; ++group) {
        for (const int block : {128, 255}) {
            const UnitImage before(port.state());
            EXPECT_FALSE(
                link.Transact(*DccFunctions(group, block, DccFunctionSet().set(), {3, false})));
            EXPECT_EQ(before.ChangesTo(port.state()), Changes{});
            expectedBoxes.push_back(overflow);
            EXPECT_EQ(EffectOf(DccSpeed(DccSteps::k28, block, 9, true, {3, false}))
                          .at("dcc.short.3.block"),
                      block);
            port.Connect(EveryKind());
        }
    }
}

}  // namespace
}  // namespace zelvar::twin
