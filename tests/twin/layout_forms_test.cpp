// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

class LayoutForms : public TwinWindow {};

TEST_F(LayoutForms, PointsMoveByTheirNumber) {
    for (const int device : {0, 5, 127, 128, 255, 256, 300, 384, 511}) {
        const std::string point = "point." + std::to_string(device);
        Type("txtTestJS70device", device);
        EXPECT_EQ(EffectOfClick("cmdTestJS70(1)"), (Changes{{point, 1}})) << "thrown";
        EXPECT_EQ(EffectOfClick("cmdTestJS70(0)"), (Changes{{point, 0}})) << "straight";
    }
}

TEST_F(LayoutForms, PointsMoveByTheirModule) {
    Click("chkTestJS70selectmodule");
    for (const int module : {0, 7, 8, 11, 15}) {
        for (const int device : {0, 3, 63}) {
            const std::string point =
                "point-of-module." + std::to_string(module) + '.' + std::to_string(device);
            Type("txtTestJS70module", module);
            Type("txtTestJS70device", device);
            EXPECT_EQ(EffectOfClick("cmdTestJS70(1)"), (Changes{{point, 1}}));
            EXPECT_EQ(EffectOfClick("cmdTestJS70(0)"), (Changes{{point, 0}}));
        }
    }
}

TEST_F(LayoutForms, SignalsShowTheirAspect) {
    for (const auto& [module, pin, aspect] :
         {std::tuple{0, 0, 1}, {0, 127, 11}, {2, 10, 3}, {15, 64, 8}, {16, 1, 2}, {31, 127, 11}}) {
        Type("txtTestYR70module", module);
        Type("txtTestYR70pin", pin);
        Type("txtTestYR70aspect", aspect);
        EXPECT_EQ(
            EffectOfClick("cmdTestYR70"),
            (Changes{{"aspect." + std::to_string(module) + '.' + std::to_string(pin), aspect}}));
    }
}

TEST_F(LayoutForms, OutputsTakeInstructionAndParameter) {
    for (const auto& [output, instruction, parameter] :
         {std::tuple{0, 63, 1}, {127, 1, 127}, {128, 2, 3}, {300, 5, 100}, {511, 63, 127}}) {
        Type("txtTestGW70output", output);
        Type("txtTestGW70instruction", instruction);
        Type("txtTestGW70parameter", parameter);
        const std::string name = "output." + std::to_string(output);
        EXPECT_EQ(EffectOfClick("cmdTestGW70"), (Changes{{name + ".instruction", instruction},
                                                         {name + ".parameter", parameter}}));
    }
}

TEST_F(LayoutForms, BlocksAreLinkedAndUnlinked) {
    for (const auto& [first, second] : {std::pair{3, 4}, {0, 255}, {130, 200}, {127, 128}}) {
        const std::string link = "link." + std::to_string(first) + '.' + std::to_string(second);
        const std::string other = "block." + std::to_string(second);
        Type("txtTestLink(0)", first);
        Type("txtTestLink(1)", second);
        EXPECT_EQ(EffectOfClick("CommandTestLink(0)"), (Changes{{link, 0}}));
        EXPECT_EQ(EffectOfClick("CommandTestLink(2)"), Changes{}) << "it is the upper one";
        EXPECT_EQ(EffectOfClick("CommandTestLink(3)"), (Changes{{link, kGone}}));
        EXPECT_EQ(EffectOfClick("CommandTestLink(1)"),
                  (Changes{{link, 1}, {other + ".forward", 0}}));
        Click("chkTestUnlinkZero");
        EXPECT_EQ(EffectOfClick("CommandTestLink(3)"),
                  (Changes{{link, kGone}, {other + ".forward", 1}}));
        Click("chkTestUnlinkZero");
        Click("CommandTestLink(0)");
        Type("txtTestLink(0)", second);
        EXPECT_EQ(EffectOfClick("CommandTestLink(2)"), (Changes{{link, kGone}}));
    }
}

TEST_F(LayoutForms, AClearedBlockStandsAndSoDoTheControls) {
    Type("txtTestBlock", 129);
    SlideTo("AnalogSpeed", 30);
    Click("CheckAnalogDirection");
    Click("CheckAnalogLight");
    SlideTo("DCCSpeed", 20);
    Click("CheckDCCDirection");
    Click("Check_Pattern(7)");
    port.TakeCommands();
    EXPECT_EQ(EffectOfClick("CommandTestClearBlock"), (Changes{{"block.129.target", 0},
                                                               {"block.129.forward", 1},
                                                               {"block.129.light", 0},
                                                               {"dcc.short.1.speed", 0},
                                                               {"dcc.short.1.forward", 1}}));
    EXPECT_EQ(port.TakeNames(), std::vector<std::string>{"clear-block"});
    EXPECT_EQ(Find<QSlider>("AnalogSpeed").value(), 0);
    EXPECT_EQ(Find<QSlider>("DCCSpeed").value(), 0);
    EXPECT_TRUE(IsTicked("CheckAnalogDirection"));
    EXPECT_TRUE(IsTicked("CheckDCCDirection"));
    EXPECT_FALSE(IsTicked("CheckAnalogLight"));
    EXPECT_FALSE(IsTicked("Check_Pattern(7)"));
}

}  // namespace
}  // namespace zelvar::twin
