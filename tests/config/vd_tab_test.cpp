// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_tab.h"

#include <QRadioButton>

#include <gtest/gtest.h>

#include <string>

#include "layout_fixture.h"

namespace zelvar::testing {
namespace {

/// A VD-F in line 5, a VD60 with its secondary unit in line 19, a QLRX-s in line 7 and a module
/// of unknown type in line 12.
class VDTabTest : public LayoutFixture {
  protected:
    VDTabTest() {
        modules = {{37, kVdFStatus},
                   {51, kVd60Status},
                   {19, kVd60Status},
                   {39, kQlrxStatus},
                   {44, kUnknownStatus}};
        RequestStatus();
        EXPECT_EQ(TextOf("lblVDtype"), "VD-F");
    }
};

/// One way to enter a value and send it; module 12 shows every frame.
struct EntryCase {
    const char* name;
    const char* field;
    const char* typed;
    const char* option;
    const char* button;
    const char* shown;
    Frames sent;
};

class VDEntry : public VDTabTest, public ::testing::WithParamInterface<EntryCase> {};

TEST_P(VDEntry, IsClampedAndSent) {
    const EntryCase& row = GetParam();
    Choose("cboVD", " 12");
    if (*row.option != 0) {
        Click(row.option);
    }
    if (*row.field != 0) {
        Type(row.field, row.typed);
    }
    Click(row.button);
    if (*row.field != 0) {
        EXPECT_EQ(TextOf(row.field), row.shown);
    }
    EXPECT_EQ(Commands(), row.sent);
    EXPECT_TRUE(messageBox.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    OfNumbers, VDEntry,
    ::testing::Values(
        EntryCase{"HfiAtMaximum", "txtHFI", "15", "", "cmdHFI(0)", "15", {{0, 44, 8, 1, 15}}},
        EntryCase{"HfiAboveMaximum", "txtHFI", "20", "", "cmdHFI(0)", "15", {{0, 44, 8, 1, 15}}},
        EntryCase{"HfiBelowZero", "txtHFI", "-3", "", "cmdHFI(0)", "0", {{0, 44, 8, 1, 0}}},
        EntryCase{"HfiHalfToEven", "txtHFI", "6.5", "", "cmdHFI(0)", "6.5", {{0, 44, 8, 1, 6}}},
        EntryCase{
            "HfiHalfToEvenAbove", "txtHFI", "7.5x", "", "cmdHFI(0)", "7.5x", {{0, 44, 8, 1, 8}}},
        EntryCase{"HfiEmpty", "txtHFI", "", "", "cmdHFI(0)", "", {{0, 44, 8, 1, 0}}},
        EntryCase{
            "DcShiftAboveMaximum", "txtDCShift", "8", "", "cmdDCShift(0)", "7", {{0, 44, 8, 8, 7}}},
        EntryCase{"AddressAboveMaximum", "txtAD", "16", "", "cmdAD(0)", "15", {{0, 44, 8, 15, 15}}},
        EntryCase{
            "LoopCurrentBelowMinimum", "txtLC", "10", "", "cmdLC(0)", "20", {{0, 44, 8, 13, 20}}},
        EntryCase{"LoopCurrentAboveMaximumOfLoopB",
                  "txtLC",
                  "71",
                  "OptLC(1)",
                  "cmdLC(0)",
                  "70",
                  {{0, 44, 8, 14, 70}}},
        EntryCase{"AlarmDelayAboveMaximum",
                  "txtAL(0)",
                  "128",
                  "",
                  "cmdAL(0)",
                  "127",
                  {{0, 44, 8, 2, 127}, {0, 44, 8, 3, 0}}},
        EntryCase{"AlarmOnDelay",
                  "txtAL(1)",
                  "99",
                  "",
                  "cmdAL(0)",
                  "99",
                  {{0, 44, 8, 2, 0}, {0, 44, 8, 3, 99}}},
        EntryCase{"SwitchDelayAboveMaximum",
                  "txtSW(3)",
                  "8",
                  "",
                  "cmdSW(0)",
                  "7",
                  {{0, 44, 8, 4, 0}, {0, 44, 8, 5, 0}, {0, 44, 8, 6, 0}, {0, 44, 8, 7, 7}}}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    OfOptions, VDEntry,
    ::testing::Values(
        EntryCase{"PwmNotChosen", "", "", "", "cmdPWMM(0)", "", {{0, 44, 8, 9, 0}}},
        EntryCase{"Pwm2", "", "", "optPWMM(2)", "cmdPWMM(0)", "", {{0, 44, 8, 9, 2}}},
        EntryCase{"Pwm4", "", "", "optPWMM(4)", "cmdPWMM(0)", "", {{0, 44, 8, 9, 4}}},
        EntryCase{"Pwm8", "", "", "optPWMM(8)", "cmdPWMM(0)", "", {{0, 44, 8, 9, 8}}},
        EntryCase{"Pwm16", "", "", "optPWMM(16)", "cmdPWMM(0)", "", {{0, 44, 8, 9, 16}}},
        EntryCase{"Pwm32", "", "", "optPWMM(32)", "cmdPWMM(0)", "", {{0, 44, 8, 9, 32}}},
        EntryCase{"OcdFast", "", "", "optOCD(0)", "cmdOCD(0)", "", {{0, 44, 8, 10, 0}}},
        EntryCase{"OcdModerate", "", "", "optOCD(1)", "cmdOCD(0)", "", {{0, 44, 8, 10, 1}}},
        EntryCase{"OcdSlow", "", "", "optOCD(2)", "cmdOCD(0)", "", {{0, 44, 8, 10, 2}}},
        EntryCase{"MsAuto", "", "", "optMS(0)", "cmdMS(0)", "", {{0, 44, 8, 11, 0}}},
        EntryCase{"MsMaster", "", "", "optMS(1)", "cmdMS(0)", "", {{0, 44, 8, 11, 1}}},
        EntryCase{"MsSlave", "", "", "optMS(2)", "cmdMS(0)", "", {{0, 44, 8, 11, 2}}},
        EntryCase{"PowerSingle", "", "", "optPC(0)", "cmdPC(0)", "", {{0, 44, 8, 12, 0}}},
        EntryCase{"PowerDouble", "", "", "optPC(1)", "cmdPC(0)", "", {{0, 44, 8, 12, 1}}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(VDTabTest, AGetClampsTheFieldAndSendsNoValue) {
    Type("txtHFI", "20");
    Click("cmdHFI(1)");
    EXPECT_EQ(TextOf("txtHFI"), "15");
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 37, 8, 1}, {}}));
}

TEST_F(VDTabTest, PermanentAddsItsBitToTheParameter) {
    Click("chkVDperm");
    Click("cmdDCShift(0)");
    Click("cmdAL(1)");
    EXPECT_EQ(Commands(), (Frames{{0, 37, 8, 72, 0}, {0, 37, 8, 66}, {0, 37, 8, 67}}));
}

TEST_F(VDTabTest, ASwitchDelayOfAVD60IsBankZeroAlone) {
    Choose("cboVD", " 19.1");
    Click("cmdSW(0)");
    EXPECT_EQ(Commands(), (Frames{{0, 51, 24, 4, 0}, {0, 51, 24, 6, 0}}));
}

TEST_F(VDTabTest, ASwitchDelayOfAVDFIsBothBanks) {
    Click("cmdSW(1)");
    EXPECT_EQ(port.SentValues(), (Frames{{},
                                         {0, 37, 8, 4},
                                         {},
                                         {},
                                         {0, 37, 8, 5},
                                         {},
                                         {},
                                         {0, 37, 8, 6},
                                         {},
                                         {},
                                         {0, 37, 8, 7},
                                         {}}));
}

TEST_F(VDTabTest, WhenTheDeviceVanishesAmongSeveralCommandsTheRestIsSilent) {
    port.responder = [this](const SentFrame& frame) {
        if (frame.values == Values{0, 37, 8, 5}) {
            port.Vanish();
        }
        return EmptyReply();
    };
    Click("cmdSW(1)");
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 37, 8, 4}, {}, {}, {0, 37, 8, 5}}));
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(VDTabTest, AGroupReachesEachOfItsModules) {
    Choose("cboVD", "All_VD60");
    Click("cmdHFI(0)");
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 51, 8, 1, 0}, {0, 51, 24, 1, 0}, {}}));
}

TEST_F(VDTabTest, WithThePortClosedEverySettingTellsItOnceAndStillClamps) {
    Choose("cboVD", " 12");
    Type("txtHFI", "20");
    Click("cmdRefresh");
    for (const char* button : {"cmdHFI(0)", "cmdAL(0)", "cmdSW(0)", "cmdDCShift(0)", "cmdPWMM(0)",
                               "cmdOCD(0)", "cmdMS(0)", "cmdPC(0)", "cmdLC(0)", "cmdAD(0)"}) {
        messageBox.shown.clear();
        Click(button);
        EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")}) << button;
    }
    EXPECT_TRUE(port.sent.empty());
    EXPECT_EQ(TextOf("txtHFI"), "15");
}

const ShownBox kVDWarning{
    "Warning! This will permanently erase all settings of all selected VD-units",
    BoxIcon::Exclamation, BoxButtons::OkCancel};
const ShownBox kCancelled{"Operation Cancelled", BoxIcon::Plain, BoxButtons::Ok};

TEST_F(VDTabTest, EraseAsksAndThenSendsNoValue) {
    messageBox.answers = {BoxAnswer::Ok};
    Click("cmdErase");
    EXPECT_EQ(messageBox.shown, std::vector{kVDWarning});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 37, 8, 64}, {}}));
}

TEST_F(VDTabTest, ACancelledEraseSendsNothing) {
    messageBox.answers = {BoxAnswer::Cancel};
    Click("cmdErase");
    EXPECT_EQ(messageBox.shown, (std::vector{kVDWarning, kCancelled}));
    EXPECT_TRUE(port.sent.empty());
}

TEST_F(VDTabTest, EraseAsksBeforeItLooksAtThePort) {
    Click("cmdRefresh");
    messageBox.answers = {BoxAnswer::Ok};
    Click("cmdErase");
    EXPECT_EQ(messageBox.shown, (std::vector{kVDWarning, Exclamation("Please select Comm-Port")}));
}

TEST_F(VDTabTest, TheMasterSlaveCheckRunsForAllVDxxAlone) {
    Choose("cboVD", "All_VDxx");
    port.responder = [](const SentFrame& frame) {
        return frame.values.size() == 4
                   ? WireFrame({0, frame.values[1], frame.values[2] + 2, frame.values[3], 2})
                   : EmptyReply();
    };
    // The first of the two is hidden then, yet either runs the check.
    for (const char* button : {"cmdMS(0)", "cmdMS(1)"}) {
        messageBox.shown.clear();
        Find<QPushButton>(button).click();
        EXPECT_EQ(messageBox.shown,
                  (std::vector<ShownBox>{
                      {"VD-F 5. is slave\r\nVD60  19. is slave\r\nVD60  51. is slave\r\n"
                       "\r\nYour system has no master!",
                       BoxIcon::Critical, BoxButtons::Ok}}))
            << button;
    }
    Choose("cboVD", " 5");
    port.ForgetSent();
    Click("cmdMS(1)");
    EXPECT_EQ(Commands(), (Frames{{0, 37, 8, 11}}));
}

TEST_F(VDTabTest, EnterPressesAButton) {
    auto& button = Find<QPushButton>("cmdHFI(0)");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(Commands(), (Frames{{0, 37, 8, 1, 0}}));
}

class VDTabWithoutStatus : public LayoutFixture {};

TEST_F(VDTabWithoutStatus, ASettingAsksForAStatusRequestAndSendsTheEmptyTransactionsAlone) {
    port.ForgetSent();
    Click("cmdHFI(0)");
    EXPECT_EQ(messageBox.shown,
              std::vector{Exclamation("Please request Status first to register modules")});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {}}));
}

TEST_F(VDTabWithoutStatus, AReplyIsIgnored) {
    Receive({0, 32, 10, 1, 9});
    EXPECT_EQ(TextOf("txtHFI"), "0");
    EXPECT_FALSE(IsGreen("txtHFI"));
}

TEST_F(VDTabWithoutStatus, FieldsAndSpinControlsStartAtTheirMinimum) {
    for (const char* name : {"txtHFI", "txtAL(0)", "txtAL(1)", "txtSW(0)", "txtSW(1)", "txtSW(2)",
                             "txtSW(3)", "txtDCShift", "txtAD"}) {
        EXPECT_EQ(TextOf(name), "0") << name;
    }
    EXPECT_EQ(TextOf("txtLC"), "20");
}

}  // namespace
}  // namespace zelvar::testing
