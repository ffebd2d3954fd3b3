// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QAbstractSpinBox>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <ostream>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

/// A number field with its spin control.
struct FieldCase {
    const char* field;
    const char* spin;
    int minimum;
    int maximum;
};

void PrintTo(const FieldCase& row, std::ostream* out) {
    *out << row.field;
}

std::string FieldName(const ::testing::TestParamInfo<FieldCase>& row) {
    std::string name = row.param.field;
    std::erase_if(name, [](char c) { return c == '(' || c == ')' || c == '_'; });
    return name;
}

class NumberFields : public DriveFixture, public ::testing::WithParamInterface<FieldCase> {
  protected:
    /// What stands in the field after a text was put there.
    std::string After(const std::string& text) {
        auto& field = Find<QLineEdit>(GetParam().field);
        field.setText(QString::fromStdString(text));
        return field.text().toStdString();
    }
};

TEST_P(NumberFields, BringsNumbersIntoTheirRange) {
    const int minimum = GetParam().minimum;
    const int maximum = GetParam().maximum;
    const std::string lowest = std::to_string(minimum);
    const std::string highest = std::to_string(maximum);
    const struct {
        std::string text;
        std::string kept;
    } kRows[] = {
        {lowest, lowest},
        {highest, highest},
        {std::to_string(minimum - 1), lowest},
        {std::to_string(maximum + 1), highest},
        {"-1", lowest},
        {"-0.5", lowest},
        {"-99999999999", lowest},
        {"99999999999", highest},
        {"1e30", highest},
        {highest + ".5", highest},
        {"1.5", "1.5"},
        {" 1 and more", " 1 and more"},
        // No number reads as 0.
        {"", minimum > 0 ? lowest : ""},
        {"none", minimum > 0 ? lowest : "none"},
    };
    for (const auto& row : kRows) {
        EXPECT_EQ(After(row.text), row.kept) << "typed '" << row.text << "'";
    }
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_P(NumberFields, StepsWithinItsRange) {
    auto& spin = Find<QAbstractSpinBox>(GetParam().spin);
    EXPECT_TRUE(spin.isAccelerated());
    EXPECT_EQ(spin.property("minimum").toInt(), GetParam().minimum);
    EXPECT_EQ(spin.property("maximum").toInt(), GetParam().maximum);
    EXPECT_EQ(NumberIn(GetParam().field), GetParam().minimum) << "at the start";
    spin.stepDown();
    EXPECT_EQ(NumberIn(GetParam().field), GetParam().minimum);
    spin.stepUp();
    EXPECT_EQ(NumberIn(GetParam().field), GetParam().minimum + 1);
    After(std::to_string(GetParam().maximum));
    spin.stepUp();
    EXPECT_EQ(NumberIn(GetParam().field), GetParam().maximum);
}

INSTANTIATE_TEST_SUITE_P(
    All, NumberFields,
    ::testing::Values(FieldCase{"txtTestBlock", "UpDown_Block", 0, 255},
                      FieldCase{"txtTestAcceleration", "UpDownTestAcceleration", 0, 127},
                      FieldCase{"txtTestHFI", "UpDownTestHFI", 0, 15},
                      FieldCase{"Text_Decoder", "UpDownDecoder", 1, 10239},
                      FieldCase{"txtTestMCCdecoder", "UpDownMCCdecoder", 0, 4095},
                      FieldCase{"txtTestMCCacceleration", "UpDownTestMCCacceleration", 0, 7},
                      FieldCase{"txtTestJS70module", "UpDowntestJS70module", 0, 15},
                      FieldCase{"txtTestJS70device", "UpDownTestJS70device", 0, 511},
                      FieldCase{"txtTestYR70module", "UpDownTestYR70module", 0, 31},
                      FieldCase{"txtTestYR70pin", "UpDownTestYR70pin", 0, 127},
                      FieldCase{"txtTestYR70aspect", "UpDownTestYR70aspect", 0, 11},
                      FieldCase{"txtTestGW70instruction", "UpDownTestGW70instruction", 0, 63},
                      FieldCase{"txtTestGW70output", "UpDownTestGW70output", 0, 511},
                      FieldCase{"txtTestGW70parameter", "UpDownTestGW70parameter", 0, 127},
                      FieldCase{"txtTestLink(0)", "UpDownTestLink(0)", 0, 255},
                      FieldCase{"txtTestLink(1)", "UpDownTestLink(1)", 0, 255}),
    FieldName);

using FieldsAndCaptions = DriveFixture;

TEST_F(FieldsAndCaptions, TypedNumbersAreCorrectedAtOnce) {
    Type("Text_Decoder", "20000");
    EXPECT_EQ(TextOf("Text_Decoder"), "10239");
    Type("Text_Decoder", "0");
    EXPECT_EQ(TextOf("Text_Decoder"), "1");
    Type("txtTestBlock", "256");
    EXPECT_EQ(TextOf("txtTestBlock"), "255");
    Type("txtTestBlock", "");
    EXPECT_EQ(TextOf("txtTestBlock"), "");
}

struct Captioned {
    const char* name;
    /// The class that the control has or inherits.
    const char* kind;
    const char* caption;
};

/// All controls with a fixed caption.
constexpr Captioned kCaptions[] = {
    {"CheckAnalogDirection", "QCheckBox", "Forward"},
    {"CheckAnalogLight", "QCheckBox", "     Light"},
    {"CommandSetHFI", "QPushButton", "Set HFI"},
    {"lblTestAnalog(0)", "QLabel", "Analog Speed"},
    {"lblTestAnalog(1)", "QLabel", "Acceleration"},
    {"lblTestAnalog(2)", "QLabel", "HFI = System global setting"},
    {"CheckDCCDirection", "QCheckBox", "Forward"},
    {"CheckDCC126", "QCheckBox", "126 Steps"},
    {"CheckDCCForceLong", "QCheckBox", "DCC Long Address"},
    {"Check_Pattern(0)", "QCheckBox", "L"},
    {"Check_Pattern(1)", "QCheckBox", "F1"},
    {"Check_Pattern(2)", "QCheckBox", "F2"},
    {"Check_Pattern(3)", "QCheckBox", "F3"},
    {"Check_Pattern(4)", "QCheckBox", "F4"},
    {"Check_Pattern(5)", "QCheckBox", "F5"},
    {"Check_Pattern(6)", "QCheckBox", "F6"},
    {"Check_Pattern(7)", "QCheckBox", "F7"},
    {"Check_Pattern(8)", "QCheckBox", "F8"},
    {"Check_Pattern(9)", "QCheckBox", "F9"},
    {"Check_Pattern(10)", "QCheckBox", "F10"},
    {"Check_Pattern(11)", "QCheckBox", "F11"},
    {"Check_Pattern(12)", "QCheckBox", "F12"},
    {"Check_Pattern(13)", "QCheckBox", "F13"},
    {"Check_Pattern(14)", "QCheckBox", "F14"},
    {"Check_Pattern(15)", "QCheckBox", "F15"},
    {"Check_Pattern(16)", "QCheckBox", "F16"},
    {"Check_Pattern(17)", "QCheckBox", "F17"},
    {"Check_Pattern(18)", "QCheckBox", "F18"},
    {"Check_Pattern(19)", "QCheckBox", "F19"},
    {"Check_Pattern(20)", "QCheckBox", "F20"},
    {"Check_Pattern(21)", "QCheckBox", "F21"},
    {"Check_Pattern(22)", "QCheckBox", "F22"},
    {"Check_Pattern(23)", "QCheckBox", "F23"},
    {"Check_Pattern(24)", "QCheckBox", "F24"},
    {"Check_Pattern(25)", "QCheckBox", "F25"},
    {"Check_Pattern(26)", "QCheckBox", "F26"},
    {"Check_Pattern(27)", "QCheckBox", "F27"},
    {"Check_Pattern(28)", "QCheckBox", "F28"},
    {"lblTestDCC(0)", "QLabel", "Decoder"},
    {"lblTestDCC(1)", "QLabel", "DCC Speed"},
    {"CheckMCC30", "QCheckBox", "30 Steps"},
    {"chkTestMCCfunction(0)", "QCheckBox", "Light"},
    {"chkTestMCCfunction(1)", "QCheckBox", "Brake"},
    {"chkTestMCCfunction(2)", "QCheckBox", "Left"},
    {"chkTestMCCfunction(3)", "QCheckBox", "Right"},
    {"chkTestMCCfunction(4)", "QCheckBox", "F1"},
    {"chkTestMCCfunction(5)", "QCheckBox", "F2"},
    {"chkTestMCCfunction(6)", "QCheckBox", "F3"},
    {"chkTestMCCfunction(7)", "QCheckBox", "F4"},
    {"cmdTestMCCfunction", "QPushButton", "Set Function"},
    {"lblTestMCC(0)", "QLabel", "Decoder"},
    {"lblTestMCC(1)", "QLabel", "MCC Speed"},
    {"lblTestMCC(2)", "QLabel", "Acceleration"},
    {"cmdTestJS70(0)", "QPushButton", "Straight"},
    {"cmdTestJS70(1)", "QPushButton", "Thrown"},
    {"lblTestJS70(1)", "QLabel", "Device"},
    {"chkTestJS70selectmodule", "QCheckBox", "Module Select"},
    {"lblTestYR70(0)", "QLabel", "YR70 Module"},
    {"lblTestYR70(1)", "QLabel", "Pin"},
    {"lblTestYR70(2)", "QLabel", "Aspect"},
    {"cmdTestYR70", "QPushButton", "Set Aspect"},
    {"lblTestGW70(0)", "QLabel", "GW70 Instruction"},
    {"lblTestGW70(1)", "QLabel", "Output"},
    {"lblTestGW70(2)", "QLabel", "Param"},
    {"cmdTestGW70", "QPushButton", "Set GW70"},
    {"lblTestLink(0)", "QLabel", "Block"},
    {"lblTestLink(1)", "QLabel", "Block"},
    {"CommandTestLink(0)", "QPushButton", "Link Blocks"},
    {"CommandTestLink(1)", "QPushButton", "Link Inverted"},
    {"CommandTestLink(2)", "QPushButton", "Unlink Down"},
    {"CommandTestLink(3)", "QPushButton", "Unlink Up"},
    {"chkTestUnlinkZero", "QCheckBox", "Clear unlinked blocks"},
    {"lblTestBlock", "QLabel", "Block"},
    {"CommandTestClearBlock", "QPushButton", "Clear Block"},
    {"CommandTestFBM", "QPushButton", "Feedback Monitor"},
};

TEST_F(FieldsAndCaptions, EveryControlCarriesItsCaption) {
    for (const Captioned& row : kCaptions) {
        auto& control = Find<QWidget>(row.name);
        EXPECT_TRUE(control.inherits(row.kind)) << row.name;
        EXPECT_EQ(TextOf(row.name), row.caption) << row.name;
        EXPECT_FALSE(control.accessibleName().isEmpty()) << row.name;
    }
}

}  // namespace
}  // namespace zelvar::testing
