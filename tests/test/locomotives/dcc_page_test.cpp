// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/dcc_page.h"

#include <QAbstractButton>

#include <gtest/gtest.h>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

class DccPageTest : public DriveFixture {
  protected:
    void SetUp() override { SetText("Text_Decoder", "3"); }
};

TEST_F(DccPageTest, StartsWith28StepsAndDecoder1) {
    EXPECT_EQ(Slider("DCCSpeed").maximum(), 28);
    EXPECT_FALSE(Box("CheckDCC126").isChecked());
    EXPECT_EQ(Find<QWidget>("UpDownDecoder").property("minimum").toInt(), 1);
}

TEST_F(DccPageTest, SendsTheSpeedToShortAndLongAddresses) {
    OpenPort();
    Slider("DCCSpeed").setValue(10);
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 106, 3}}));
    Click("CheckDCCForceLong");
    EXPECT_EQ(TakeSent(), Sent{}) << "the form of the address is for the next command";
    Slider("DCCSpeed").setValue(11);
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 107, 3, 0}}));
    Click("CheckDCCForceLong");
    SetText("Text_Decoder", "1000");
    SetText("txtTestBlock", "200");
    Slider("DCCSpeed").setValue(12);
    EXPECT_EQ(TakeSent(), (Sent{{41, 72, 108, 104, 7}}));
}

TEST_F(DccPageTest, RoundsTheDecoderToTheEvenNeighbourBeforeItChoosesTheForm) {
    OpenPort();
    SetText("Text_Decoder", "126.5");
    Slider("DCCSpeed").setValue(10);
    SetText("Text_Decoder", "127.5");
    Slider("DCCSpeed").setValue(11);
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 106, 126}, {40, 0, 107, 0, 1}}));
}

TEST_F(DccPageTest, SendsTheDirectionWithTheSpeed) {
    OpenPort();
    Slider("DCCSpeed").setValue(10);
    TakeSent();
    Click("CheckDCCDirection");
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 74, 3}}));
    Box("CheckDCCDirection").setChecked(true);
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 106, 3}}));
}

TEST_F(DccPageTest, WithThePortClosedTheDirectionTellsSo) {
    Click("CheckDCCDirection");
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_TRUE(port.written.empty());
}

TEST_F(DccPageTest, DrivesWith126Steps) {
    OpenPort();
    Click("CheckDCC126");
    EXPECT_EQ(Slider("DCCSpeed").maximum(), 126);
    EXPECT_EQ(TakeSent(), Sent{}) << "the slider stood at 0 already";
    Box("CheckDCCDirection").setChecked(false);
    EXPECT_EQ(TakeSent(), (Sent{{44, 0, 0, 0, 3}}));
    Slider("DCCSpeed").setValue(100);
    EXPECT_EQ(TakeSent(), (Sent{{44, 0, 0, 100, 3}}));
}

TEST_F(DccPageTest, AnotherStepModeStopsAMovingSliderInTheNewMode) {
    OpenPort();
    Slider("DCCSpeed").setValue(10);
    TakeSent();
    Click("CheckDCC126");
    EXPECT_EQ(TakeSent(), (Sent{{44, 0, 1, 0, 3}}));
    Slider("DCCSpeed").setValue(126);
    TakeSent();
    Box("CheckDCC126").setChecked(false);
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 96, 3}}));
    EXPECT_EQ(Slider("DCCSpeed").maximum(), 28);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
}

TEST_F(DccPageTest, WithThePortClosedAnotherStepModeTellsSoOnceForAMovedSlider) {
    Click("CheckDCC126");
    EXPECT_TRUE(messageBox.shown.empty()) << "nothing was to be sent";
    Slider("DCCSpeed").setValue(10);
    messageBox.shown.clear();
    Click("CheckDCC126");
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").maximum(), 28);
}

TEST_F(DccPageTest, TheEmergencyStopZeroesBothSlidersAndSendsOneCommand) {
    OpenPort();
    Slider("AnalogSpeed").setValue(12);
    Slider("DCCSpeed").setValue(7);
    TakeSent();
    Click("cmdEstopDCC");
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 127, 3}}));
    EXPECT_EQ(Slider("AnalogSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
    Box("CheckDCCDirection").setChecked(false);
    TakeSent();
    Click("cmdEstopDCC");
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 95, 3}})) << "also at standstill";
}

TEST_F(DccPageTest, TheEmergencyStopLeavesTheSpeedOfTheBlockAsItStands) {
    OpenPort();
    Slider("AnalogSpeed").setValue(12);
    ASSERT_EQ(TextOf("lblTestAnalogSpeed"), ">>12");
    Click("cmdEstopDCC");
    EXPECT_EQ(TextOf("lblTestAnalogSpeed"), ">>12");
}

TEST_F(DccPageTest, AValueOnItsWayIsNotSentAfterTheEmergencyStop) {
    OpenPort();
    StepByKey("AnalogSpeed");
    StepByKey("DCCSpeed");
    Click("cmdEstopDCC");
    Settle();
    EXPECT_EQ(TakeSent(), (Sent{{40, 0, 127, 3}}));
    EXPECT_EQ(Slider("AnalogSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
}

TEST_F(DccPageTest, TheEmergencyStopOf126StepsIs127) {
    OpenPort();
    Click("CheckDCC126");
    SetText("txtTestBlock", "128");
    SetText("Text_Decoder", "10239");
    Click("cmdEstopDCC");
    EXPECT_EQ(TakeSent(), (Sent{{45, 0, 1, 127, 127, 79}}));
}

TEST_F(DccPageTest, FunctionBoxesSendOnlyThroughTheirButton) {
    OpenPort();
    for (const char* box : {"Check_Pattern(0)", "Check_Pattern(4)", "Check_Pattern(8)",
                            "Check_Pattern(9)", "Check_Pattern(20)", "Check_Pattern(28)"}) {
        Click(box);
    }
    EXPECT_EQ(TakeSent(), Sent{});
    for (const char* button :
         {"Command1(0)", "Command1(1)", "Command1(2)", "Command1(3)", "Command1(4)"}) {
        Click(button);
    }
    EXPECT_EQ(
        TakeSent(),
        (Sent{{40, 0, 24, 3}, {40, 0, 56, 3}, {40, 0, 33, 3}, {44, 0, 5, 0, 3}, {44, 0, 7, 0, 3}}));
}

TEST_F(DccPageTest, EveryFunctionBoxHasItsOwnBit) {
    OpenPort();
    constexpr int kFirst[] = {0, 5, 9, 13, 21, 29};
    for (int group = 0; group < 5; ++group) {
        const std::string button = "Command1(" + std::to_string(group) + ")";
        for (int function = kFirst[group]; function < kFirst[group + 1]; ++function) {
            const std::string box = "Check_Pattern(" + std::to_string(function) + ")";
            Box(box.c_str()).setChecked(true);
            Click(button);
            Box(box.c_str()).setChecked(false);
            DccFunctionSet functions;
            functions[static_cast<std::size_t>(function)] = true;
            const Command expected = *DccFunctions(group, 0, functions, {3, false});
            EXPECT_EQ(TakeSent(),
                      (Sent{{expected.values.begin(), expected.values.begin() + expected.count}}))
                << box;
        }
    }
}

TEST_F(DccPageTest, FunctionsOfABlockAbove127OverflowAfterTheirFirstByte) {
    OpenPort();
    SetText("txtTestBlock", "128");
    // Groups of eight go out as another command.
    constexpr int kFirstValues[] = {40, 40, 40, 44, 44};
    for (int group = 0; group < 5; ++group) {
        const std::string button = "Command1(" + std::to_string(group) + ")";
        port.written.clear();
        messageBox.shown.clear();
        Click(button);
        EXPECT_EQ(messageBox.shown,
                  (std::vector<ShownBox>{{"Overflow", BoxIcon::Critical, BoxButtons::Ok}}))
            << button;
        ASSERT_EQ(port.written.size(), 2U) << button;
        EXPECT_EQ(port.written[1], 128 + kFirstValues[group]) << button;
    }
}

TEST_F(DccPageTest, TheCaptionsOfTheGroupButtonsArePaddedToOneWidth) {
    const char* const captions[] = {"Set F1..F4 + L", "Set F5..F8    ", "Set F9..F12   ",
                                    "Set F13..F20  ", "Set F21..F28  "};
    for (int i = 0; i < 5; ++i) {
        const std::string name = "Command1(" + std::to_string(i) + ")";
        EXPECT_EQ(TextOf(name), captions[i]);
    }
}

}  // namespace
}  // namespace zelvar::testing
