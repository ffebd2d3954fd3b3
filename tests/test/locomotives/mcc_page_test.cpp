// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/mcc_page.h"

#include <gtest/gtest.h>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

class MccPageTest : public DriveFixture {
  protected:
    void SetUp() override {
        SetText("txtTestMCCdecoder", "130");
        SetText("txtTestMCCacceleration", "7");
    }
};

TEST_F(MccPageTest, SendsTheSpeedInSteps15) {
    OpenPort();
    EXPECT_EQ(Slider("MCCspeed").maximum(), 15);
    Slider("MCCspeed").setValue(15);
    Slider("MCCspeed").setValue(1);
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 31, 7}, {6, 1, 2, 17, 7}}));
}

TEST_F(MccPageTest, SendsTheSpeedInSteps30) {
    OpenPort();
    Click("CheckMCC30");
    TakeSent();
    EXPECT_EQ(Slider("MCCspeed").maximum(), 30);
    for (const int value : {1, 2, 3, 29, 30}) {
        Slider("MCCspeed").setValue(value);
    }
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 1, 7},
                                {6, 1, 2, 17, 7},
                                {6, 1, 2, 2, 7},
                                {6, 1, 2, 15, 7},
                                {6, 1, 2, 31, 7}}));
}

TEST_F(MccPageTest, AnotherStepModeSendsStandstillInTheNewMode) {
    OpenPort();
    Click("CheckMCC30");
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 16, 7}}));
}

TEST_F(MccPageTest, AnotherStepModeStopsAMovingSliderFirstInTheOldMode) {
    OpenPort();
    Slider("MCCspeed").setValue(9);
    TakeSent();
    Click("CheckMCC30");
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 16, 7}, {6, 1, 2, 16, 7}}));
    Slider("MCCspeed").setValue(30);
    TakeSent();
    Box("CheckMCC30").setChecked(false);
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 16, 7}, {6, 1, 2, 16, 7}}));
    EXPECT_EQ(Slider("MCCspeed").maximum(), 15);
    EXPECT_EQ(Slider("MCCspeed").value(), 0);
}

TEST_F(MccPageTest, WithThePortClosedAnotherStepModeTellsSoOnceForAMovedSlider) {
    Click("CheckMCC30");
    EXPECT_TRUE(messageBox.shown.empty()) << "nothing was to be sent";
    EXPECT_EQ(Slider("MCCspeed").maximum(), 30);
    Slider("MCCspeed").setValue(9);
    messageBox.shown.clear();
    Click("CheckMCC30");
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider("MCCspeed").value(), 0);
    EXPECT_EQ(Slider("MCCspeed").maximum(), 15);
}

TEST_F(MccPageTest, TheEmergencyStopSendsStandstillOfAMovedSliderThenTheStop) {
    OpenPort();
    Slider("MCCspeed").setValue(9);
    TakeSent();
    Click("cmdEstopMCC");
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 16, 7}, {6, 1, 2, 0, 0}}));
    EXPECT_EQ(Slider("MCCspeed").value(), 0);
    Click("cmdEstopMCC");
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 0, 0}})) << "also at standstill";
}

TEST_F(MccPageTest, TheEmergencyStopLeavesTheOtherSlidersAlone) {
    OpenPort();
    Slider("AnalogSpeed").setValue(5);
    Slider("DCCSpeed").setValue(6);
    Click("cmdEstopMCC");
    EXPECT_EQ(Slider("AnalogSpeed").value(), 5);
    EXPECT_EQ(Slider("DCCSpeed").value(), 6);
}

TEST_F(MccPageTest, TheEmergencyStopGoesOutAlsoWhenStandstillFoundNoAnswer) {
    OpenPort();
    Slider("MCCspeed").setValue(9);
    TakeSent();
    port.replies = {Bytes{}};
    Click("cmdEstopMCC");
    EXPECT_EQ(TakeSent(), (Sent{{6, 1, 2, 16, 7}, {6, 1, 2, 0, 0}}));
    EXPECT_EQ(messageBox.shown, (std::vector<ShownBox>{Exclamation("No response from Zelvar")}));
}

TEST_F(MccPageTest, WithThePortClosedTheEmergencyStopTellsSoOnceAndMovesNothing) {
    Slider("MCCspeed").setValue(9);
    messageBox.shown.clear();
    Click("cmdEstopMCC");
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider("MCCspeed").value(), 9);
}

TEST_F(MccPageTest, FunctionsSendOnlyThroughTheirButton) {
    OpenPort();
    for (int i = 0; i < 8; ++i) {
        const std::string box = "chkTestMCCfunction(" + std::to_string(i) + ")";
        Click(box);
        EXPECT_EQ(TakeSent(), Sent{}) << box;
        Click("cmdTestMCCfunction");
        const int bit = 1 << (i % 4);
        EXPECT_EQ(TakeSent(), (Sent{{7, 1, 2, i < 4 ? bit : 0, i < 4 ? 0 : bit}})) << box;
        Click(box);
    }
}

}  // namespace
}  // namespace zelvar::testing
