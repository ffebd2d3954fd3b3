// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/spin_field.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>

namespace zelvar::testing {
namespace {

class SpinFieldTest : public ::testing::Test {
  protected:
    SpinFieldTest() {
        auto* layout = new QVBoxLayout(&form);
        layout->addWidget(spin);
        layout->addWidget(other);
        QObject::connect(spin, &SpinField::textChanged, &form, [this] { ++changes; });
        QObject::connect(spin, &SpinField::stepped, &form, [this] { ++steps; });
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        spin->setFocus();
    }

    void Type(const char* text) {
        spin->lineEdit()->selectAll();
        QTest::keyClicks(spin->lineEdit(), QString::fromUtf8(text));
    }
    std::string Shown() const { return spin->lineEdit()->text().toStdString(); }

    void ClickArrow(QStyle::SubControl arrow) {
        QStyleOptionSpinBox option;
        option.initFrom(spin);
        option.subControls = QStyle::SC_All;
        option.frame = spin->hasFrame();
        const QRect place = spin->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, spin);
        QTest::mouseClick(spin, Qt::LeftButton, Qt::NoModifier, place.center());
    }

    QWidget form;
    SpinField* spin = new SpinField(QStringLiteral("updownX"), QStringLiteral("txtX"),
                                    QStringLiteral("X"), 0, 60, &form);
    QLineEdit* other = new QLineEdit(&form);
    int changes = 0;
    int steps = 0;
};

TEST_F(SpinFieldTest, SpinControlAndFieldCanBeFoundByTheirNames) {
    EXPECT_EQ(form.findChild<SpinField*>(QStringLiteral("updownX")), spin);
    EXPECT_EQ(form.findChild<QLineEdit*>(QStringLiteral("txtX")), spin->lineEdit());
    EXPECT_EQ(spin->property("minimum").toInt(), 0);
    EXPECT_EQ(spin->property("maximum").toInt(), 60);
}

TEST_F(SpinFieldTest, StartsWithTheNumberOfItsRangeNearestToZero) {
    EXPECT_EQ(Shown(), "0");
    const SpinField above(QStringLiteral("a"), QStringLiteral("b"), QString(), 5, 60);
    EXPECT_EQ(above.lineEdit()->text(), QStringLiteral("5"));
}

struct StepRow {
    const char* name;
    const char* typed;
    int key;
    const char* shown;
};

class Steps : public SpinFieldTest, public ::testing::WithParamInterface<StepRow> {};

TEST_P(Steps, GoFromTheShownNumberAndStayWithinTheRange) {
    Type(GetParam().typed);
    QTest::keyClick(spin, static_cast<Qt::Key>(GetParam().key));
    EXPECT_EQ(Shown(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, Steps,
    ::testing::Values(StepRow{"Up", "12", Qt::Key_Up, "13"},
                      StepRow{"Down", "12", Qt::Key_Down, "11"},
                      StepRow{"UpAtTheMaximum", "60", Qt::Key_Up, "60"},
                      StepRow{"DownAtTheMinimum", "0", Qt::Key_Down, "0"},
                      StepRow{"UpFromText", "abc", Qt::Key_Up, "1"},
                      StepRow{"UpFromNumberAndText", "7x", Qt::Key_Up, "8"},
                      StepRow{"UpFromFraction", "2.5", Qt::Key_Up, "3"},
                      StepRow{"DownFromAboveTheRange", "999", Qt::Key_Down, "59"},
                      StepRow{"UpFromBelowTheRange", "-5", Qt::Key_Up, "1"},
                      StepRow{"PageUp", "12", Qt::Key_PageUp, "22"},
                      StepRow{"PageUpNearTheMaximum", "55", Qt::Key_PageUp, "60"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(SpinFieldTest, TheArrowsStepAndSaySo) {
    Type("12");
    changes = 0;
    ClickArrow(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(Shown(), "13");
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(changes, 1);
    ClickArrow(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(Shown(), "12");
    EXPECT_EQ(steps, 2);
}

TEST_F(SpinFieldTest, TakesAnyTextAndKeepsIt) {
    for (const char* text : {"abc", "-5", "99999", "1e3", "4 2", "%&"}) {
        Type(text);
        EXPECT_EQ(Shown(), text);
        other->setFocus();
        EXPECT_EQ(Shown(), text) << "leaving the field changed it";
        spin->setFocus();
        QTest::keyClick(spin->lineEdit(), Qt::Key_Return);
        EXPECT_EQ(Shown(), text) << "Enter changed it";
    }
    EXPECT_EQ(steps, 0);
}

TEST_F(SpinFieldTest, EveryKeystrokeIsAChange) {
    Type("123");
    EXPECT_EQ(changes, 3);
    spin->lineEdit()->setText(QStringLiteral("5"));
    EXPECT_EQ(changes, 4);
    spin->lineEdit()->setText(QStringLiteral("5"));
    EXPECT_EQ(changes, 4);
}

struct ClampRow {
    const char* name;
    const char* text;
    const char* shown;
    int value;
};

class Clamping : public SpinFieldTest, public ::testing::WithParamInterface<ClampRow> {};

TEST_P(Clamping, BringsTheTextIntoTheRangeAndLeavesTheRest) {
    spin->setMinimum(2);
    Type(GetParam().text);
    EXPECT_EQ(spin->value(), GetParam().value);
    spin->clamp();
    EXPECT_EQ(Shown(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Clamping,
    ::testing::Values(ClampRow{"Within", "12", "12", 12}, ClampRow{"AtTheMinimum", "2", "2", 2},
                      ClampRow{"AtTheMaximum", "60", "60", 60}, ClampRow{"Above", "61", "60", 60},
                      ClampRow{"Below", "1", "2", 2}, ClampRow{"Negative", "-7", "2", 2},
                      ClampRow{"Letters", "abc", "2", 2},
                      ClampRow{"NumberAndText", "12abc", "12abc", 12},
                      ClampRow{"Huge", "99999999999999999999", "60", 60},
                      ClampRow{"HugeExponent", "1e999", "60", 60},
                      ClampRow{"HugeNegative", "-1e999", "2", 2}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(SpinFieldTest, NumbersAreWrittenPlainWhateverTheLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    SpinField wide(QStringLiteral("a"), QStringLiteral("b"), QString(), 0, 9999);
    wide.lineEdit()->setText(QStringLiteral("99999"));
    wide.clamp();
    EXPECT_EQ(wide.lineEdit()->text(), QStringLiteral("9999"));
    wide.stepBy(-1);
    EXPECT_EQ(wide.lineEdit()->text(), QStringLiteral("9998"));
    wide.lineEdit()->setText(QStringLiteral("1.5"));
    EXPECT_EQ(wide.value(), 2);
    QLocale::setDefault(before);
}

TEST_F(SpinFieldTest, TheWheelStepsOnlyWithTheFocus) {
    const auto roll = [this] {
        QWheelEvent up(QPointF(5, 5), spin->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120),
                       Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(spin, &up);
    };
    other->setFocus();
    roll();
    EXPECT_EQ(Shown(), "0");
    spin->setFocus();
    roll();
    EXPECT_EQ(Shown(), "1");
}

}  // namespace
}  // namespace zelvar::testing
