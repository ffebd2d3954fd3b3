// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QAbstractSpinBox>

#include <gtest/gtest.h>

#include <string>

#include "config/vd_tab.h"
#include "layout_fixture.h"

namespace zelvar::testing {
namespace {

/// Module 12, whose type is unknown so that every field is shown; its address is 44.
class NumberFields : public LayoutFixture {
  protected:
    NumberFields() {
        modules = {{44, kUnknownStatus}};
        RequestStatus();
    }
};

/// A name of a test case, from a control's name, which may have an index.
std::string CaseNameOf(std::string name) {
    std::erase_if(name, [](char c) { return c == '(' || c == ')'; });
    return name;
}

struct TypedCase {
    const char* name;
    const char* field;
    const char* typed;
    const char* shown;
    const char* button;
    const char* afterClick;
};

class TypedNumber : public NumberFields, public ::testing::WithParamInterface<TypedCase> {};

TEST_P(TypedNumber, IsClampedWhenItsFieldIs) {
    const TypedCase& row = GetParam();
    Type(row.field, row.typed);
    EXPECT_EQ(TextOf(row.field), row.shown);
    Click(row.button);
    EXPECT_EQ(TextOf(row.field), row.afterClick);
}

INSTANTIATE_TEST_SUITE_P(
    AtOnce, TypedNumber,
    ::testing::Values(TypedCase{"AlarmOffAbove", "txtAL(0)", "128", "127", "cmdAL(0)", "127"},
                      TypedCase{"AlarmOffBelow", "txtAL(0)", "-1", "0", "cmdAL(0)", "0"},
                      TypedCase{"AlarmOffAtMaximum", "txtAL(0)", "127", "127", "cmdAL(0)", "127"},
                      TypedCase{"AlarmOnAbove", "txtAL(1)", "128", "127", "cmdAL(0)", "127"},
                      TypedCase{"AlarmOnBelow", "txtAL(1)", "-1", "0", "cmdAL(0)", "0"},
                      TypedCase{"AlarmText", "txtAL(0)", "x", "x", "cmdAL(0)", "x"},
                      TypedCase{"SwitchOff0Above", "txtSW(0)", "8", "7", "cmdSW(0)", "7"},
                      TypedCase{"SwitchOff0Below", "txtSW(0)", "-1", "0", "cmdSW(0)", "0"},
                      TypedCase{"SwitchOff1Above", "txtSW(1)", "8", "7", "cmdSW(0)", "7"},
                      TypedCase{"SwitchOff1Below", "txtSW(1)", "-1", "0", "cmdSW(0)", "0"},
                      TypedCase{"SwitchOn0Above", "txtSW(2)", "8", "7", "cmdSW(0)", "7"},
                      TypedCase{"SwitchOn0Below", "txtSW(2)", "-1", "0", "cmdSW(0)", "0"},
                      TypedCase{"SwitchOn1Above", "txtSW(3)", "8", "7", "cmdSW(0)", "7"},
                      TypedCase{"SwitchOn1Below", "txtSW(3)", "-1", "0", "cmdSW(0)", "0"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    WithTheClick, TypedNumber,
    ::testing::Values(TypedCase{"HfiAbove", "txtHFI", "99", "99", "cmdHFI(0)", "15"},
                      TypedCase{"HfiBelow", "txtHFI", "-1", "-1", "cmdHFI(0)", "0"},
                      TypedCase{"DcShiftAbove", "txtDCShift", "99", "99", "cmdDCShift(0)", "7"},
                      TypedCase{"DcShiftBelow", "txtDCShift", "-1", "-1", "cmdDCShift(0)", "0"},
                      TypedCase{"LoopCurrentAbove", "txtLC", "99", "99", "cmdLC(0)", "70"},
                      TypedCase{"LoopCurrentBelow", "txtLC", "5", "5", "cmdLC(0)", "20"},
                      TypedCase{"AddressAbove", "txtAD", "99", "99", "cmdAD(0)", "15"},
                      TypedCase{"AddressBelow", "txtAD", "-1", "-1", "cmdAD(0)", "0"}),
    [](const auto& row) { return std::string(row.param.name); });

struct SpinCase {
    const char* spin;
    const char* field;
    int minimum;
    int maximum;
};

class SpinControl : public NumberFields, public ::testing::WithParamInterface<SpinCase> {};

TEST_P(SpinControl, StepsByOneToBothEndsOfItsRange) {
    const SpinCase& row = GetParam();
    auto& spin = Find<QAbstractSpinBox>(row.spin);
    EXPECT_EQ(spin.property("minimum").toInt(), row.minimum);
    EXPECT_EQ(spin.property("maximum").toInt(), row.maximum);
    struct End {
        int from;
        Qt::Key key;
        int last;
    };
    for (const End& end : {End{row.maximum - 2, Qt::Key_Up, row.maximum},
                           End{row.minimum + 2, Qt::Key_Down, row.minimum}}) {
        Type(row.field, end.from);
        QTest::keyClick(&spin, end.key);
        EXPECT_EQ(NumberIn(row.field), (end.from + end.last) / 2) << "one step";
        QTest::keyClick(&spin, end.key);
        EXPECT_EQ(NumberIn(row.field), end.last);
        QTest::keyClick(&spin, end.key);
        EXPECT_EQ(NumberIn(row.field), end.last) << "beyond the end";
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheForm, SpinControl,
                         ::testing::Values(SpinCase{"updownHFI", "txtHFI", 0, 15},
                                           SpinCase{"updownAL(0)", "txtAL(0)", 0, 127},
                                           SpinCase{"updownAL(1)", "txtAL(1)", 0, 127},
                                           SpinCase{"updownSW(0)", "txtSW(0)", 0, 7},
                                           SpinCase{"updownSW(1)", "txtSW(1)", 0, 7},
                                           SpinCase{"updownSW(2)", "txtSW(2)", 0, 7},
                                           SpinCase{"updownSW(3)", "txtSW(3)", 0, 7},
                                           SpinCase{"updownDCShift", "txtDCShift", 0, 7},
                                           SpinCase{"UpDownLC", "txtLC", 20, 70},
                                           SpinCase{"updownAD", "txtAD", 0, 15},
                                           SpinCase{"updownJSdevice", "txtJSdevice", 0, 63},
                                           SpinCase{"updownJStime", "txtJStime", 0, 127}),
                         [](const auto& row) { return CaseNameOf(row.param.spin); });

struct ReportedCase {
    const char* spin;
    const char* field;
    int parameter;
};

class ReportedNumber : public NumberFields, public ::testing::WithParamInterface<ReportedCase> {};

TEST_P(ReportedNumber, LosesItsGreenWithAStep) {
    const ReportedCase& row = GetParam();
    Receive({0, 44, 10, row.parameter, 3});
    ASSERT_TRUE(IsGreen(row.field));
    Find<QAbstractSpinBox>(row.spin).stepUp();
    EXPECT_FALSE(IsGreen(row.field));
    EXPECT_EQ(Find<QLineEdit>(row.field).palette().color(QPalette::Base),
              QApplication::palette("QLineEdit").color(QPalette::Base));
}

INSTANTIATE_TEST_SUITE_P(OfTheForm, ReportedNumber,
                         ::testing::Values(ReportedCase{"updownHFI", "txtHFI", 1},
                                           ReportedCase{"updownAL(0)", "txtAL(0)", 2},
                                           ReportedCase{"updownAL(1)", "txtAL(1)", 3},
                                           ReportedCase{"updownSW(0)", "txtSW(0)", 4},
                                           ReportedCase{"updownSW(1)", "txtSW(1)", 5},
                                           ReportedCase{"updownSW(2)", "txtSW(2)", 6},
                                           ReportedCase{"updownSW(3)", "txtSW(3)", 7},
                                           ReportedCase{"updownDCShift", "txtDCShift", 8},
                                           ReportedCase{"UpDownLC", "txtLC", 13},
                                           ReportedCase{"updownAD", "txtAD", 15}),
                         [](const auto& row) { return CaseNameOf(row.param.spin); });

struct SeriesCase {
    const char* name;
    const char* button;
    /// What the module reports to the first command, and so changes for a later one.
    Values reported;
    Frames sent;
};

class CommandSeries : public NumberFields, public ::testing::WithParamInterface<SeriesCase> {};

TEST_P(CommandSeries, ReadsEachFieldJustBeforeItsOwnCommand) {
    port.replies = {EmptyReply(), WireFrame(GetParam().reported)};
    Click(GetParam().button);
    EXPECT_EQ(Commands(), GetParam().sent);
}

TEST_P(CommandSeries, GoesOnAfterAFailedCommand) {
    port.replies = {EmptyReply(), Bytes{}};
    Click(GetParam().button);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    Frames expected = GetParam().sent;
    for (Values& frame : expected) {
        frame.back() = 0;
    }
    EXPECT_EQ(Commands(), expected);
    // The failed command has no closing empty transaction.
    EXPECT_EQ(port.sent.size(), 3 * expected.size() - 1);
}

INSTANTIATE_TEST_SUITE_P(
    OfDelays, CommandSeries,
    ::testing::Values(
        SeriesCase{"Alarm", "cmdAL(0)", {0, 44, 10, 3, 88}, {{0, 44, 8, 2, 0}, {0, 44, 8, 3, 88}}},
        SeriesCase{"Switch",
                   "cmdSW(0)",
                   {0, 44, 10, 6, 5},
                   {{0, 44, 8, 4, 0}, {0, 44, 8, 5, 0}, {0, 44, 8, 6, 5}, {0, 44, 8, 7, 0}}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
