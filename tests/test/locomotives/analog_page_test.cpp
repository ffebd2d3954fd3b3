// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/analog_page.h"

#include <gtest/gtest.h>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

class AnalogPageTest : public DriveFixture {
  protected:
    std::string ReadOut() { return TextOf("lblTestAnalogSpeed"); }
};

TEST_F(AnalogPageTest, SendsTheSpeedAndShowsItWithoutAcceleration) {
    OpenPort();
    SetText("txtTestBlock", "5");
    Slider("AnalogSpeed").setValue(12);
    EXPECT_EQ(TakeSent(), (Sent{{34, 5, 76}}));
    EXPECT_EQ(ReadOut(), ">>12");
    Click("CheckAnalogDirection");
    EXPECT_EQ(TakeSent(), (Sent{{34, 5, 12}}));
    EXPECT_EQ(ReadOut(), "<<12");
    SetText("txtTestBlock", "200");
    Slider("AnalogSpeed").setValue(63);
    EXPECT_EQ(TakeSent(), (Sent{{35, 72, 63}}));
}

TEST_F(AnalogPageTest, SendsTheAccelerationAndShowsNoSpeedThen) {
    OpenPort();
    SetText("txtTestBlock", "5");
    SetText("txtTestAcceleration", "10");
    Slider("AnalogSpeed").setValue(12);
    EXPECT_EQ(TakeSent(), (Sent{{34, 5, 76, 10}}));
    EXPECT_EQ(ReadOut(), "---");
}

TEST_F(AnalogPageTest, TheDirectionBoxTakesTheAccelerationToo) {
    OpenPort();
    SetText("txtTestBlock", "5");
    Slider("AnalogSpeed").setValue(12);
    ASSERT_EQ(ReadOut(), ">>12");
    SetText("txtTestAcceleration", "10");
    TakeSent();
    Click("CheckAnalogDirection");
    EXPECT_EQ(TakeSent(), (Sent{{34, 5, 12, 10}}));
    EXPECT_EQ(ReadOut(), "---");
}

TEST_F(AnalogPageTest, TakesASmallFractionForAnAcceleration) {
    OpenPort();
    SetText("txtTestAcceleration", "0.4");
    Slider("AnalogSpeed").setValue(1);
    EXPECT_EQ(TakeSent(), (Sent{{34, 0, 65, 0}}));
    EXPECT_EQ(ReadOut(), "---");
}

TEST_F(AnalogPageTest, TakesTextThatIsNoNumberForNoAcceleration) {
    OpenPort();
    SetText("txtTestAcceleration", "fast");
    Slider("AnalogSpeed").setValue(1);
    EXPECT_EQ(TakeSent(), (Sent{{34, 0, 65}}));
}

TEST_F(AnalogPageTest, ADragSendsTheNewestValue) {
    OpenPort();
    QSlider& slider = Slider("AnalogSpeed");
    ShowTabOf(slider);
    QTest::mousePress(&slider, Qt::LeftButton, {}, PlaceOf(slider, 0));
    for (const int value : {4, 9, 16}) {
        QTest::mouseMove(&slider, PlaceOf(slider, value));
    }
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, PlaceOf(slider, slider.value()));
    ASSERT_GT(slider.value(), 9);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !port.sent.empty(); }));
    EXPECT_EQ(TakeSent().back(), (std::vector<int>{34, 0, 64 + slider.value()}));
}

TEST_F(AnalogPageTest, SendsTheDirectionAlsoWhenCodeChangesIt) {
    OpenPort();
    Box("CheckAnalogDirection").setChecked(false);
    EXPECT_EQ(TakeSent(), (Sent{{34, 0, 0}}));
}

TEST_F(AnalogPageTest, TheLightLeavesTheSpeedAlone) {
    OpenPort();
    SetText("txtTestBlock", "128");
    Slider("AnalogSpeed").setValue(12);
    TakeSent();
    Click("CheckAnalogLight");
    EXPECT_EQ(TakeSent(), (Sent{{33, 0, 16}}));
    EXPECT_EQ(ReadOut(), ">>12");
    EXPECT_EQ(Slider("AnalogSpeed").value(), 12);
    SetText("txtTestBlock", "127");
    Box("CheckAnalogLight").setChecked(false);
    EXPECT_EQ(TakeSent(), (Sent{{32, 127, 0}}));
}

TEST_F(AnalogPageTest, SetsTheHfi) {
    OpenPort();
    SetText("txtTestHFI", "15");
    Click("CommandSetHFI");
    EXPECT_EQ(TakeSent(), (Sent{{1, 1, 15}}));
}

TEST_F(AnalogPageTest, TheEmergencyStopZeroesBothSlidersAndSendsOneCommand) {
    OpenPort();
    SetText("txtTestBlock", "5");
    SetText("txtTestAcceleration", "10");
    Slider("AnalogSpeed").setValue(12);
    Slider("DCCSpeed").setValue(7);
    TakeSent();
    Click("cmdEstopAnalog");
    EXPECT_EQ(TakeSent(), (Sent{{34, 5, 64}}));
    EXPECT_EQ(Slider("AnalogSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
    EXPECT_EQ(ReadOut(), ">>0");
}

TEST_F(AnalogPageTest, TheEmergencyStopSendsAlsoAtStandstillAndKeepsTheDirection) {
    OpenPort();
    Box("CheckAnalogDirection").setChecked(false);
    TakeSent();
    Click("cmdEstopAnalog");
    EXPECT_EQ(TakeSent(), (Sent{{34, 0, 0}}));
    EXPECT_EQ(ReadOut(), "<<0");
}

TEST_F(AnalogPageTest, AValueOnItsWayIsNotSentAfterTheEmergencyStop) {
    OpenPort();
    // A stray report would carry the acceleration.
    SetText("txtTestAcceleration", "10");
    StepByKey("DCCSpeed");
    StepByKey("AnalogSpeed");
    Click("cmdEstopAnalog");
    Settle();
    EXPECT_EQ(TakeSent(), (Sent{{34, 0, 64}}));
    EXPECT_EQ(Slider("AnalogSpeed").value(), 0);
    EXPECT_EQ(Slider("DCCSpeed").value(), 0);
}

TEST_F(AnalogPageTest, SendsOnAfterAnEmergencyStop) {
    OpenPort();
    Click("cmdEstopAnalog");
    TakeSent();
    Slider("AnalogSpeed").setValue(1);
    Box("CheckAnalogLight").setChecked(true);
    EXPECT_EQ(TakeSent(), (Sent{{34, 0, 65}, {32, 0, 16}}));
}

TEST_F(AnalogPageTest, WithThePortClosedTheSliderStaysWhereItWasLeft) {
    Slider("AnalogSpeed").setValue(12);
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider("AnalogSpeed").value(), 12);
    EXPECT_EQ(ReadOut(), "---");
    EXPECT_TRUE(port.written.empty());
}

TEST_F(AnalogPageTest, WithThePortClosedTheBoxesAreSilent) {
    Box("CheckAnalogDirection").toggle();
    Box("CheckAnalogLight").toggle();
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_TRUE(port.written.empty());
}

TEST_F(AnalogPageTest, WithThePortClosedTheEmergencyStopChangesNoSlider) {
    Slider("AnalogSpeed").setValue(12);
    messageBox.shown.clear();
    Click("cmdEstopAnalog");
    EXPECT_EQ(messageBox.shown, kSelectPort);
    EXPECT_EQ(Slider("AnalogSpeed").value(), 12);
}

TEST_F(AnalogPageTest, ShowsTheSpeedThatTheBlockReports) {
    OpenPort();
    SetText("txtTestBlock", "130");
    port.replies = {WireFrame({0x23, 2, 0x40 + 12})};
    Click("cmdReset");
    EXPECT_EQ(ReadOut(), ">>12");
    port.replies = {WireFrame({0x22, 2, 5}), WireFrame({0x23, 2, 63})};
    Click("cmdReset");
    EXPECT_EQ(ReadOut(), ">>12");
    Click("cmdReset");
    EXPECT_EQ(ReadOut(), "<<63");
}

TEST_F(AnalogPageTest, AnEmptyBlockTakesTheReportsOfBlock0Only) {
    OpenPort();
    SetText("txtTestBlock", "");
    port.replies = {WireFrame({0x22, 1, 5}), WireFrame({0x22, 0, 6})};
    Click("cmdReset");
    EXPECT_EQ(ReadOut(), "---");
    Click("cmdReset");
    EXPECT_EQ(ReadOut(), "<<6");
}

TEST_F(AnalogPageTest, TellsItsTwoNumbersApart) {
    auto& slider = Find<QLabel>("lblAnalogSpeedValue");
    auto& block = Find<QLabel>("lblTestAnalogSpeed");
    ShowTabOf(block);
    EXPECT_EQ(slider.toolTip(), QStringLiteral("Where the slider stands"));
    EXPECT_EQ(block.toolTip(), QStringLiteral("Speed of the block"));
    EXPECT_NE(block.frameShape(), QFrame::NoFrame);
    EXPECT_GE(block.x() - slider.geometry().right(), 12);
}

TEST_F(AnalogPageTest, AnotherBlockHasAnUnknownSpeed) {
    OpenPort();
    Slider("AnalogSpeed").setValue(12);
    ASSERT_EQ(ReadOut(), ">>12");
    Type("txtTestBlock", "7");
    EXPECT_EQ(ReadOut(), "---");
}

}  // namespace
}  // namespace zelvar::testing
