// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QAbstractSpinBox>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <string>

#include "config/vd_tab.h"
#include "layout_fixture.h"

namespace zelvar::testing {
namespace {

/// Module 12, whose type is unknown so that every frame is shown; its address is 44.
class VDTabReply : public LayoutFixture {
  protected:
    VDTabReply() {
        modules = {{44, kUnknownStatus}};
        RequestStatus();
    }

    void Report(int parameter, int value) { Receive({0, 44, 10, parameter, value}); }

    bool IsChosen(const char* name) { return Find<QRadioButton>(name).isChecked(); }
};

struct FieldCase {
    const char* field;
    int parameter;
    int value;
    const char* shown;
};

class FieldReply : public VDTabReply, public ::testing::WithParamInterface<FieldCase> {};

TEST_P(FieldReply, IsWrittenInGreen) {
    const FieldCase& row = GetParam();
    EXPECT_FALSE(IsGreen(row.field));
    Report(row.parameter, row.value);
    EXPECT_EQ(TextOf(row.field), row.shown);
    EXPECT_TRUE(IsGreen(row.field));
}

// A number is written as it came, and where a change is clamped it is clamped then.
INSTANTIATE_TEST_SUITE_P(
    OfFields, FieldReply,
    ::testing::Values(FieldCase{"txtHFI", 1, 9, "9"}, FieldCase{"txtHFI", 1, 99, "99"},
                      FieldCase{"txtAL(0)", 2, 127, "127"}, FieldCase{"txtAL(1)", 3, 5, "5"},
                      FieldCase{"txtSW(0)", 4, 1, "1"}, FieldCase{"txtSW(1)", 5, 2, "2"},
                      FieldCase{"txtSW(2)", 6, 7, "7"}, FieldCase{"txtSW(3)", 7, 8, "7"},
                      FieldCase{"txtDCShift", 8, 3, "3"}, FieldCase{"txtLC", 13, 44, "44"},
                      FieldCase{"txtAD", 15, 11, "11"}),
    [](const auto& row) {
        return "Parameter" + std::to_string(row.param.parameter) + "Value" +
               std::to_string(row.param.value);
    });

struct OptionCase {
    const char* option;
    int parameter;
    int value;
};

class OptionReply : public VDTabReply, public ::testing::WithParamInterface<OptionCase> {};

TEST_P(OptionReply, IsChosenInGreen) {
    const OptionCase& row = GetParam();
    Report(row.parameter, row.value);
    EXPECT_TRUE(IsChosen(row.option));
    EXPECT_TRUE(IsGreen(row.option));
}

INSTANTIATE_TEST_SUITE_P(
    OfOptions, OptionReply,
    ::testing::Values(OptionCase{"optPWMM(2)", 9, 2}, OptionCase{"optPWMM(4)", 9, 4},
                      OptionCase{"optPWMM(8)", 9, 8}, OptionCase{"optPWMM(16)", 9, 16},
                      OptionCase{"optPWMM(32)", 9, 32}, OptionCase{"optOCD(0)", 10, 0},
                      OptionCase{"optOCD(1)", 10, 1}, OptionCase{"optOCD(2)", 10, 2},
                      OptionCase{"optMS(0)", 11, 0}, OptionCase{"optMS(1)", 11, 1},
                      OptionCase{"optMS(2)", 11, 2}, OptionCase{"optPC(0)", 12, 0},
                      OptionCase{"optPC(1)", 12, 1}),
    [](const auto& row) {
        return "Parameter" + std::to_string(row.param.parameter) + "Value" +
               std::to_string(row.param.value);
    });

TEST_F(VDTabReply, AValueThatTheSettingDoesNotHaveChangesNothing) {
    Click("optPWMM(8)");
    Click("optOCD(1)");
    for (const auto& [parameter, value] :
         {std::pair{9, 6}, {9, 0}, {10, 3}, {11, 3}, {12, 2}, {0, 1}, {63, 1}}) {
        Report(parameter, value);
    }
    EXPECT_TRUE(IsChosen("optPWMM(8)"));
    EXPECT_TRUE(IsChosen("optOCD(1)"));
    EXPECT_TRUE(IsChosen("optPC(0)"));
    for (const char* name : {"optPWMM(8)", "optOCD(1)", "optPC(0)", "optMS(0)", "txtHFI"}) {
        EXPECT_FALSE(IsGreen(name)) << name;
    }
}

TEST_F(VDTabReply, OfThePermanentMemoryIsShownOnlyWhilePermanentIsTicked) {
    Report(65, 9);
    EXPECT_EQ(TextOf("txtHFI"), "0");
    Click("chkVDperm");
    Report(1, 8);
    EXPECT_EQ(TextOf("txtHFI"), "0");
    Report(65, 9);
    EXPECT_EQ(TextOf("txtHFI"), "9");
    EXPECT_TRUE(IsGreen("txtHFI"));
}

TEST_F(VDTabReply, OfAnotherModuleIsIgnored) {
    Receive({0, 45, 10, 1, 9});
    Receive({0, 44, 26, 1, 9});
    EXPECT_EQ(TextOf("txtHFI"), "0");
}

TEST_F(VDTabReply, OfTheOtherLoopIsNotShown) {
    Report(14, 44);
    EXPECT_EQ(TextOf("txtLC"), "20");
    Click("OptLC(1)");
    Report(13, 33);
    EXPECT_EQ(TextOf("txtLC"), "20");
    Report(14, 44);
    EXPECT_EQ(TextOf("txtLC"), "44");
}

TEST_F(VDTabReply, ToAGetAppearsWhileTheCommandRuns) {
    Choose("cboVD", " 12");
    // The Get buttons are hidden for this type; the Set button's command serves as well.
    port.replies = {EmptyReply(), WireFrame({0, 44, 10, 8, 6}), EmptyReply()};
    Click("cmdDCShift(0)");
    EXPECT_EQ(TextOf("txtDCShift"), "6");
    EXPECT_TRUE(IsGreen("txtDCShift"));
}

TEST_F(VDTabReply, GreenFieldsTurnBackWhenTheirButtonLosesTheFocus) {
    Click("cmdAL(0)");
    Report(2, 5);
    Report(3, 6);
    ASSERT_TRUE(IsGreen("txtAL(0)") && IsGreen("txtAL(1)"));
    Click("cmdHFI(0)");
    EXPECT_FALSE(IsGreen("txtAL(0)"));
    EXPECT_FALSE(IsGreen("txtAL(1)"));
    EXPECT_EQ(Find<QLineEdit>("txtAL(0)").palette().color(QPalette::Base),
              QApplication::palette("QLineEdit").color(QPalette::Base));
}

TEST_F(VDTabReply, GreenOptionsTurnBackWhenTheirButtonLosesTheFocus) {
    const std::pair<const char*, std::pair<int, const char*>> rows[] = {
        {"cmdPWMM(0)", {9, "optPWMM(2)"}},
        {"cmdOCD(0)", {10, "optOCD(2)"}},
        {"cmdMS(0)", {11, "optMS(2)"}},
    };
    for (const auto& [button, option] : rows) {
        Click(button);
        Report(option.first, 2);
        ASSERT_TRUE(IsGreen(option.second)) << button;
        Click("cmdHFI(0)");
        EXPECT_FALSE(IsGreen(option.second)) << button;
    }
}

struct LeftCase {
    const char* button;
    const char* control;
    int parameter;
};

/// With a VD-F, whose Get buttons are shown; its address is 37.
class LeftButton : public LayoutFixture, public ::testing::WithParamInterface<LeftCase> {
  protected:
    LeftButton() {
        modules = {{37, kVdFStatus}};
        RequestStatus();
    }
};

TEST_P(LeftButton, TurnsWhatItGotBack) {
    Click(GetParam().button);
    Receive({0, 37, 10, GetParam().parameter, 1});
    ASSERT_TRUE(IsGreen(GetParam().control));
    Click("cmdDCShift(0)");
    EXPECT_FALSE(IsGreen(GetParam().control));
}

INSTANTIATE_TEST_SUITE_P(
    OfBothKinds, LeftButton,
    ::testing::Values(LeftCase{"cmdHFI(0)", "txtHFI", 1}, LeftCase{"cmdHFI(1)", "txtHFI", 1},
                      LeftCase{"cmdAL(1)", "txtAL(1)", 3}, LeftCase{"cmdSW(1)", "txtSW(3)", 7},
                      LeftCase{"cmdOCD(1)", "optOCD(1)", 10}, LeftCase{"cmdMS(1)", "optMS(1)", 11},
                      LeftCase{"cmdPC(0)", "optPC(1)", 12}, LeftCase{"cmdPC(1)", "optPC(1)", 12}),
    [](const auto& row) {
        std::string name = row.param.button;
        std::erase_if(name, [](char c) { return c == '(' || c == ')'; });
        return name;
    });

TEST_F(VDTabReply, OnlyTheReportedOptionIsGreen) {
    Report(10, 0);
    Report(10, 2);
    EXPECT_FALSE(IsGreen("optOCD(0)"));
    EXPECT_TRUE(IsGreen("optOCD(2)"));
}

TEST_F(VDTabReply, ASpinControlTurnsItsFieldBackAndStepsFromWhatItShows) {
    Report(1, 9);
    ASSERT_TRUE(IsGreen("txtHFI"));
    Find<QAbstractSpinBox>("updownHFI").stepUp();
    EXPECT_EQ(TextOf("txtHFI"), "10");
    EXPECT_FALSE(IsGreen("txtHFI"));
}

TEST_F(VDTabReply, TextOnGreenIsDarkInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(25, 25, 25));
    dark.setColor(QPalette::Window, QColor(45, 45, 45));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    QApplication::processEvents();
    Report(1, 9);
    Report(10, 2);
    EXPECT_TRUE(IsGreen("txtHFI"));
    EXPECT_EQ(Find<QLineEdit>("txtHFI").palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(Find<QRadioButton>("optOCD(2)").palette().color(QPalette::WindowText),
              QColor(Qt::black));
    EXPECT_EQ(Find<QRadioButton>("optOCD(0)").palette().color(QPalette::WindowText),
              QColor(Qt::white));
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace zelvar::testing
