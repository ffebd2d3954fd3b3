// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QAbstractSpinBox>
#include <QStyleOptionSpinBox>

#include <gtest/gtest.h>

#include <ostream>

#include "test/feedback/feedback_fixture.h"

namespace zelvar::testing {
namespace {

struct LayoutRow {
    const char* name;
    int layout;
    const char* caption;
    int stride;
    int maximum;
};

void PrintTo(const LayoutRow& row, std::ostream* out) {
    *out << row.name;
}

class FeedbackMonitorLayouts : public FeedbackFixture,
                               public ::testing::WithParamInterface<LayoutRow> {
  protected:
    void ExpectCaptionsFrom(int base) {
        for (int i = 0; i < 128; ++i) {
            EXPECT_EQ(Label(i).text(),
                      QString::number(base + i % 16 + GetParam().stride * (i / 16)))
                << "label " << i;
        }
    }
};

TEST_P(FeedbackMonitorLayouts, CaptionAll128Labels) {
    Click("CommandTestFBM");
    ChooseLayout(GetParam().layout);
    const std::string name = "opFBmod(" + std::to_string(GetParam().layout) + ")";
    EXPECT_EQ(Part<QRadioButton>(name).text(), QString::fromUtf8(GetParam().caption));
    ExpectCaptionsFrom(0);
    QTest::keyClick(&Part<QWidget>("UpDownFBbase"), Qt::Key_Up);
    EXPECT_EQ(BaseText(), QStringLiteral("1"));
    ExpectCaptionsFrom(1);
    SetBase(2000);
    EXPECT_EQ(BaseText(), QString::number(GetParam().maximum));
    ExpectCaptionsFrom(GetParam().maximum);
    QTest::keyClick(&Part<QWidget>("UpDownFBbase"), Qt::Key_Up);
    EXPECT_EQ(BaseText(), QString::number(GetParam().maximum));
}

TEST_P(FeedbackMonitorLayouts, ALargerBaseIsCutToTheLargest) {
    Click("CommandTestFBM");
    SetBase(1920);
    ChooseLayout(GetParam().layout);
    EXPECT_EQ(Part<QWidget>("UpDownFBbase").property("maximum").toInt(), GetParam().maximum);
    EXPECT_EQ(BaseText(), QString::number(GetParam().maximum));
    ExpectCaptionsFrom(GetParam().maximum);
}

TEST_P(FeedbackMonitorLayouts, AreChosenByCodeAsByTheMouse) {
    Click("CommandTestFBM");
    // The first one is chosen already.
    Part<QRadioButton>(GetParam().layout == 0 ? "opFBmod(3)" : "opFBmod(0)").setChecked(true);
    SetBase(1920);
    Part<QRadioButton>("opFBmod(" + std::to_string(GetParam().layout) + ")").setChecked(true);
    EXPECT_EQ(Part<QWidget>("UpDownFBbase").property("maximum").toInt(), GetParam().maximum);
    const int base = BaseText().toInt();
    EXPECT_EQ(base, GetParam().layout == 0 ? 1024 : GetParam().maximum);
    ExpectCaptionsFrom(base);
}

TEST_P(FeedbackMonitorLayouts, ShowTheStatesOfTheirInputs) {
    OpenPort();
    Click("CommandTestFBM");
    const int last = 15 + 7 * GetParam().stride;
    Receive(Report(last, true));
    ChooseLayout(GetParam().layout);
    EXPECT_EQ(GroundOf(127), kActive);
    EXPECT_EQ(GroundOf(126), kNoInformation);
}

INSTANTIATE_TEST_SUITE_P(All, FeedbackMonitorLayouts,
                         ::testing::Values(LayoutRow{"Consecutive", 0, "1x128", 16, 1920},
                                           LayoutRow{"Mod32", 1, "8x16 mod 32", 32, 1792},
                                           LayoutRow{"Mod64", 2, "8x16 mod 64", 64, 1536},
                                           LayoutRow{"Mod128", 3, "8x16 mod 128", 128, 1024}),
                         [](const auto& row) { return row.param.name; });

using FeedbackBaseTest = FeedbackFixture;

TEST_F(FeedbackBaseTest, StartsWithConsecutiveInputsFrom0) {
    Click("CommandTestFBM");
    EXPECT_TRUE(Part<QRadioButton>("opFBmod(0)").isChecked());
    for (const char* other : {"opFBmod(1)", "opFBmod(2)", "opFBmod(3)"}) {
        EXPECT_FALSE(Part<QRadioButton>(other).isChecked()) << other;
    }
    EXPECT_EQ(BaseText(), QStringLiteral("0"));
    EXPECT_EQ(Label(127).text(), QStringLiteral("127"));
}

TEST_F(FeedbackBaseTest, TheBaseIsSteppedFasterTheLongerItsArrowIsHeld) {
    Click("CommandTestFBM");
    EXPECT_TRUE(Part<QAbstractSpinBox>("UpDownFBbase").isAccelerated());
}

TEST_F(FeedbackBaseTest, ItsSpinControlIsNoWiderThanItsArrows) {
    Click("CommandTestFBM");
    auto& spin = Part<QAbstractSpinBox>("UpDownFBbase");
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.frame = true;
    const QRect up =
        spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin);
    EXPECT_EQ(up.left(), 1) << "room for the outline only";
    EXPECT_GT(up.width(), 5);
}

TEST_F(FeedbackBaseTest, ABaseOf1500BecomesTheLargestOfMod128) {
    Click("CommandTestFBM");
    SetBase(1500);
    ChooseLayout(3);
    EXPECT_EQ(BaseText(), QStringLiteral("1024"));
}

TEST_F(FeedbackBaseTest, ABaseWithinTheNewLayoutStays) {
    Click("CommandTestFBM");
    SetBase(1000);
    ChooseLayout(3);
    ChooseLayout(0);
    EXPECT_EQ(BaseText(), QStringLiteral("1000"));
}

}  // namespace
}  // namespace zelvar::testing
