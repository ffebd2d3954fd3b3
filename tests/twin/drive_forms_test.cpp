// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

class DriveForms : public TwinWindow {
  protected:
    std::string ReadOut() { return TextOf("lblTestAnalogSpeed"); }
    int SpeedOf(int block) {
        return port.state().drive.blocks()[static_cast<std::size_t>(block)].speed.speed();
    }
};

struct AnalogFormRow {
    const char* name;
    int block;
    int speed;
    bool forward;
    int acceleration;
};

const AnalogFormRow kAnalogRows[] = {
    {"Block200Speed40ReverseAcceleration12", 200, 40, false, 12},
    {"FirstBlockCrawls", 0, 1, true, 0},
    {"FirstBlockAtTop", 0, 63, true, 0},
    {"LastBlockAtTopReverse", 255, 63, false, 0},
    {"LastLowBlock", 127, 33, true, 0},
    {"FirstHighBlockSlowest", 128, 63, true, 127},
    {"LastBlockFastest", 255, 2, true, 1},
};

class AnalogForm : public DriveForms, public ::testing::WithParamInterface<AnalogFormRow> {};

TEST_P(AnalogForm, TheBlockRunsAsTheFormSaysAndTheReadOutFollows) {
    const auto& [name, block, speed, forward, acceleration] = GetParam();
    Type("txtTestBlock", block);
    Type("txtTestAcceleration", acceleration);
    Tick("CheckAnalogDirection", forward);
    const std::string prefix = "block." + std::to_string(block);
    const int sign = forward ? 1 : -1;
    EXPECT_EQ(EffectOf([&] { SlideTo("AnalogSpeed", speed); }),
              (Changes{{prefix + ".target", sign * speed}}));
    const auto step = acceleration * std::chrono::milliseconds(10);
    port.Pass(step * speed - step / 2);
    EXPECT_EQ(SpeedOf(block), sign * (acceleration == 0 ? speed : speed - 1));
    port.Pass(step / 2);
    EXPECT_EQ(SpeedOf(block), sign * speed);
    Poll(2);
    EXPECT_EQ(ReadOut(), (forward ? ">>" : "<<") + std::to_string(speed));
    EXPECT_EQ(EffectOfClick("CheckAnalogDirection"),
              (Changes{{prefix + ".target", -sign * speed}, {prefix + ".forward", !forward}}));
    EXPECT_EQ(EffectOfClick("CheckAnalogLight"), (Changes{{prefix + ".light", 1}}));
    EXPECT_EQ(EffectOfClick("cmdEstopAnalog"), (Changes{{prefix + ".target", 0}}));
    EXPECT_EQ(SpeedOf(block), 0) << "without a ramp";
    EXPECT_EQ(Find<QSlider>("AnalogSpeed").value(), 0);
    EXPECT_EQ(EffectOfClick("CheckAnalogLight"), (Changes{{prefix + ".light", 0}}));
}

INSTANTIATE_TEST_SUITE_P(Rows, AnalogForm, ::testing::ValuesIn(kAnalogRows), NameOf<AnalogFormRow>);

TEST_F(DriveForms, TheHfiIsTheNumberInItsField) {
    for (const int level : {15, 1, 8, 0}) {
        Type("txtTestHFI", level);
        EXPECT_EQ(EffectOfClick("CommandSetHFI"), (Changes{{"hfi", level}}));
    }
    Type("txtTestHFI", 99);
    EXPECT_EQ(EffectOfClick("CommandSetHFI"), (Changes{{"hfi", 15}}));
}

struct DccFormRow {
    const char* name;
    int decoder;
    bool forceLong;
    const char* inUnit;
    int block;
};

const DccFormRow kDccRows[] = {
    {"FirstShort", 1, false, "dcc.short.1", 0},     {"ShortAsLong", 3, true, "dcc.long.3", 127},
    {"LastShort", 127, false, "dcc.short.127", 99}, {"FirstLong", 128, false, "dcc.long.128", 1},
    {"Last", 10239, false, "dcc.long.10239", 127},
};

class DccForm : public DriveForms, public ::testing::WithParamInterface<DccFormRow> {
  protected:
    void SetUp() override {
        Type("txtTestBlock", GetParam().block);
        Type("Text_Decoder", GetParam().decoder);
        Tick("CheckDCCForceLong", GetParam().forceLong);
    }
    std::string Part(const char* part) { return GetParam().inUnit + std::string(part); }
    Changes Whole(int steps, int speed, bool forward) {
        return {{Part(".steps"), steps},
                {Part(".speed"), speed},
                {Part(".forward"), forward},
                {Part(".emergency-stop"), 0},
                {Part(".block"), GetParam().block},
                {Part(".functions"), 0}};
    }
};

TEST_P(DccForm, TheLocomotiveRunsTurnsAndStops) {
    EXPECT_EQ(EffectOf([&] { SlideTo("DCCSpeed", 1); }), Whole(28, 1, true));
    EXPECT_EQ(EffectOf([&] { SlideTo("DCCSpeed", 28); }), (Changes{{Part(".speed"), 28}}));
    EXPECT_EQ(EffectOfClick("CheckDCCDirection"), (Changes{{Part(".forward"), 0}}));
    EXPECT_EQ(EffectOfClick("cmdEstopDCC"),
              (Changes{{Part(".speed"), 0}, {Part(".emergency-stop"), 1}}));
    EXPECT_EQ(Find<QSlider>("DCCSpeed").value(), 0);
    EXPECT_EQ(EffectOfClick("CheckDCC126"), Changes{});
    EXPECT_EQ(
        EffectOf([&] { SlideTo("DCCSpeed", 126); }),
        (Changes{{Part(".steps"), 126}, {Part(".speed"), 126}, {Part(".emergency-stop"), 0}}));
    EXPECT_EQ(EffectOfClick("cmdEstopDCC"),
              (Changes{{Part(".speed"), 0}, {Part(".emergency-stop"), 1}}));
    EXPECT_EQ(EffectOfClick("CheckDCCDirection"),
              (Changes{{Part(".forward"), 1}, {Part(".emergency-stop"), 0}}));
}

TEST_P(DccForm, EachTickedFunctionIsSwitchedByTheButtonOfItsGroup) {
    SlideTo("DCCSpeed", 5);
    constexpr int kLasts[] = {4, 8, 12, 20, 28};
    int group = 0;
    int functions = 0;
    for (int function = 0; function <= 28; ++function) {
        group += function > kLasts[group] ? 1 : 0;
        EXPECT_EQ(EffectOfClick(Member("Check_Pattern", function)), Changes{});
        functions |= 1 << function;
        EXPECT_EQ(EffectOfClick(Member("Command1", group)),
                  (Changes{{Part(".functions"), functions}}))
            << function;
    }
    Click("Check_Pattern(0)");
    Click("Check_Pattern(28)");
    EXPECT_EQ(EffectOfClick("Command1(0)"), (Changes{{Part(".functions"), functions - 1}}));
    EXPECT_EQ(EffectOfClick("Command1(4)"),
              (Changes{{Part(".functions"), functions - 1 - (1 << 28)}}));
}

INSTANTIATE_TEST_SUITE_P(Rows, DccForm, ::testing::ValuesIn(kDccRows), NameOf<DccFormRow>);

TEST_F(DriveForms, ADccSpeedNamesABlockAbove127AndFunctionsDoNot) {
    Type("txtTestBlock", 255);
    EXPECT_EQ(EffectOf([&] { SlideTo("DCCSpeed", 3); }).at("dcc.short.1.block"), 255);
    EXPECT_EQ(EffectOfClick("Command1(3)"), Changes{});
    expectedBoxes = {{"Overflow", BoxIcon::Critical, BoxButtons::Ok}};
    EXPECT_EQ(EffectOf([&] { SlideTo("DCCSpeed", 4); }), (Changes{{"dcc.short.1.speed", 4}}));
}

TEST_F(DriveForms, AnMccLocomotiveRunsInBothStepModesAndStops) {
    for (const int decoder : {0, 127, 128, 4095}) {
        const std::string name = "mcc." + std::to_string(decoder);
        Type("txtTestMCCdecoder", decoder);
        SlideTo("MCCspeed", 0);
        const Changes started = EffectOf([&] { SlideTo("MCCspeed", 15); });
        EXPECT_EQ(started.at(name + ".half-steps"), 30);
        EXPECT_EQ(EffectOf([&] { SlideTo("MCCspeed", 1); }), (Changes{{name + ".half-steps", 2}}));
        EXPECT_EQ(EffectOfClick("CheckMCC30"), (Changes{{name + ".half-steps", 0}}));
        EXPECT_EQ(EffectOf([&] { SlideTo("MCCspeed", 1); }), (Changes{{name + ".half-steps", 1}}));
        EXPECT_EQ(EffectOf([&] { SlideTo("MCCspeed", 29); }),
                  (Changes{{name + ".half-steps", 29}}));
        EXPECT_EQ(EffectOfClick("cmdEstopMCC"),
                  (Changes{{name + ".half-steps", 0}, {name + ".emergency-stop", 1}}));
        EXPECT_EQ(Find<QSlider>("MCCspeed").value(), 0);
        EXPECT_EQ(EffectOfClick("CheckMCC30"), (Changes{{name + ".emergency-stop", 0}}))
            << "speed 0 in the new steps";
    }
}

TEST_F(DriveForms, AnMccLocomotiveTakesTheTimeOfItsAcceleration) {
    Click("CheckMCC30");
    Type("txtTestMCCacceleration", 7);
    SlideTo("MCCspeed", 30);
    const auto& locomotive = port.state().drive.mcc().at(0);
    port.Pass(std::chrono::milliseconds(20 * 7 * 15 + 1));
    EXPECT_EQ(locomotive.halfSteps.speed(), 15);
    EXPECT_EQ(EffectOfClick("cmdEstopMCC"),
              (Changes{{"mcc.0.half-steps", 0}, {"mcc.0.emergency-stop", 1}}));
    EXPECT_EQ(locomotive.halfSteps.speed(), 0) << "without a ramp";
}

TEST_F(DriveForms, EachMccFunctionIsItsOwn) {
    Type("txtTestMCCdecoder", 300);
    SlideTo("MCCspeed", 2);
    int functions = 0;
    // Light, Brake, Left, Right, F1, F2, F3, F4
    for (int function = 0; function < 8; ++function) {
        EXPECT_EQ(EffectOfClick(Member("chkTestMCCfunction", function)), Changes{});
        functions |= 1 << function;
        EXPECT_EQ(EffectOfClick("cmdTestMCCfunction"), (Changes{{"mcc.300.functions", functions}}));
    }
    Click("chkTestMCCfunction(3)");
    EXPECT_EQ(EffectOfClick("cmdTestMCCfunction"), (Changes{{"mcc.300.functions", 255 - 8}}));
}

}  // namespace
}  // namespace zelvar::twin
