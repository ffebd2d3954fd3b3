// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/transparent_text.h"
#include "protocol/unit_settings.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

constexpr int kPatterns = 256;

/// The boxes with these numbers, as bits, are ticked.
KBSwitches Ticked(int pattern) {
    KBSwitches boxes{};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i] = (pattern >> i & 1) != 0;
    }
    return boxes;
}

class UnitTwin : public TwinLink {
  protected:
    static std::string In(const char* name, bool permanent) {
        return std::string(name) + (permanent ? ".permanent" : ".active");
    }
};

TEST_F(UnitTwin, EverySetOfSwitchesIsKeptAndReadBack) {
    for (const bool permanent : {false, true}) {
        for (int pattern = kPatterns - 1; pattern >= 0; --pattern) {
            ASSERT_EQ(EffectOf(CommandForUnit(KBConfigCommand(0, permanent, Ticked(pattern)))),
                      (Changes{{In("configuration", permanent), pattern}}));
            // The boxes show something else before the answer.
            ASSERT_EQ(EffectOf(CommandForUnit(KBConfigCommand(1, permanent, Ticked(~pattern)))),
                      Changes{});
            ASSERT_TRUE(MatchesReply(ReplyKind::KBConfig, *reply));
            ASSERT_EQ(ReadKBConfigReply(*reply), Ticked(pattern));
        }
    }
}

TEST_F(UnitTwin, EverySetOfOptionsIsKeptButThoseThatMeanTransparentMode) {
    for (int pattern = 1; pattern <= 127; ++pattern) {
        if (pattern == 16 || pattern == 32 || pattern == 48) {
            continue;
        }
        ASSERT_EQ(EffectOf(CommandForUnit(KBOptionsCommand(Ticked(pattern)))),
                  (Changes{{"options", pattern}}));
    }
}

// The options "VD-Ch1" and "VD-Ch0" alone or together are the switches into transparent mode.
TEST_F(UnitTwin, TheOptionsOfTheTwoChannelsAloneMeanTransparentMode) {
    for (const int pattern : {16, 32, 48}) {
        port.Connect(EveryKind());
        EXPECT_EQ(EffectOf(CommandForUnit(KBOptionsCommand(Ticked(pattern)))),
                  (Changes{{"transparent", 1}}));
    }
}

// An option byte with option 7 does not fit a data value; this is intentional.
TEST_F(UnitTwin, OptionsWithTheLastOneDoNotLeave) {
    for (int pattern = 128; pattern < kPatterns; ++pattern) {
        const UnitImage before(port.state());
        EXPECT_FALSE(link.Transact(CommandForUnit(KBOptionsCommand(Ticked(pattern)))));
        EXPECT_EQ(before.ChangesTo(port.state()), Changes{});
        expectedBoxes.push_back({"Overflow", BoxIcon::Critical, BoxButtons::Ok});
    }
    Do(kEmptyTransaction);
}

// Boxes i and i + 4 weigh the same and carry into the next one; this is intentional.
TEST_F(UnitTwin, EverySetOf64DeviceBoxesIsKeptAsTheirSum) {
    for (const bool permanent : {false, true}) {
        for (int pattern = 0; pattern < kPatterns; ++pattern) {
            port.state().memories.unit.Part(permanent).deviceMode = 99;
            port.state().memories.unit.Part(permanent).configuration = 77;
            const int sum = pattern % 16 + pattern / 16;
            ASSERT_EQ(EffectOf(CommandForUnit(Js64DeviceModeCommand(permanent, Ticked(pattern)))),
                      (Changes{{In("device-mode", permanent), sum}}));
        }
    }
}

struct ModeRow {
    const char* name;
    int index;
    const char* inUnitsWords;
};

const ModeRow kModeRows[] = {{"Channel0", 0, "transparent-channel-0"},
                             {"Channel1", 1, "transparent-channel-1"},
                             {"BootLoader", 2, "transparent-boot-loader"}};

class TransparentTwin : public TwinLink, public ::testing::WithParamInterface<ModeRow> {};

TEST_P(TransparentTwin, TheUnitIsSilentUntilItIsRebooted) {
    EXPECT_EQ(EffectOf(TransparentModeCommand(GetParam().index)), (Changes{{"transparent", 1}}));
    EXPECT_EQ(port.TakeNames(), std::vector<std::string>{GetParam().inUnitsWords});
    EXPECT_TRUE(timer.enabled);
    EXPECT_FALSE(link.Transact(kEmptyTransaction, kTransparentText));
    EXPECT_FALSE(timer.enabled) << "polling ends";
    expectedBoxes = {testing::Exclamation(std::string(kTransparentText))};
    port.Reboot();
    Do(kEmptyTransaction);
    EXPECT_TRUE(timer.enabled);
}

INSTANTIATE_TEST_SUITE_P(Rows, TransparentTwin, ::testing::ValuesIn(kModeRows), NameOf<ModeRow>);

TEST_F(UnitTwin, TheStopBoxGoesWithEveryFrame) {
    for (const bool ticked : {true, false, true}) {
        view.stopTicked = ticked;
        for (const Command& command : {kEmptyTransaction, kResetFault}) {
            Do(command);
            EXPECT_EQ(port.state().stopRequested, ticked);
        }
    }
}

TEST_F(UnitTwin, TheStateOfTheSystemIsShownAndAFaultReset) {
    const auto shownAfter = [&](const Command& command) {
        Do(command);
        return view.states.back();
    };
    EXPECT_EQ(shownAfter(kEmptyTransaction), SystemState::Run);
    port.state().fault = true;
    EXPECT_EQ(shownAfter(kEmptyTransaction), SystemState::Fault);
    view.stopTicked = true;
    EXPECT_EQ(shownAfter(kEmptyTransaction), SystemState::Stop);
    view.stopTicked = false;
    EXPECT_EQ(shownAfter(kEmptyTransaction), SystemState::Fault);
    port.state().hold = true;
    EXPECT_EQ(EffectOf(kResetFault), (Changes{{"fault", 0}}));
    EXPECT_EQ(view.states.back(), SystemState::Run);
}

}  // namespace
}  // namespace zelvar::twin
