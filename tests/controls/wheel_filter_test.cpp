// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/wheel_filter.h"

#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace zelvar::testing {
namespace {

class WheelFilterTest : public ::testing::Test {
  protected:
    WheelFilterTest() {
        auto* layout = new QVBoxLayout(&form);
        layout->addWidget(control);
        layout->addWidget(other);
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    /// @return whether the control took it; otherwise it goes on to the form
    bool Turn() const {
        const QPointF place = control->rect().center();
        QWheelEvent wheel(place, control->mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(control, &wheel);
        return wheel.isAccepted();
    }

    QWidget form;
    QSpinBox* control = new QSpinBox(&form);
    QSpinBox* other = new QSpinBox(&form);
};

TEST_F(WheelFilterTest, WithFocusLetsItPassOnlyThen) {
    FilterWheel(*control, Wheel::WithFocus);
    other->setFocus();
    EXPECT_FALSE(Turn());
    EXPECT_EQ(control->value(), 0);
    control->setFocus();
    EXPECT_TRUE(Turn());
    EXPECT_EQ(control->value(), 1);
}

TEST_F(WheelFilterTest, NeverLetsItPassNotEvenWithFocus) {
    FilterWheel(*control, Wheel::Never);
    control->setFocus();
    EXPECT_FALSE(Turn());
    EXPECT_EQ(control->value(), 0);
}

}  // namespace
}  // namespace zelvar::testing
