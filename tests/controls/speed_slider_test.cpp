// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/speed_slider.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "platform/nested_loop.h"
#include "platform/qt_message_box.h"
#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

using Values = std::vector<int>;

/// Milliseconds after which a wait for the event loop has failed.
constexpr int kLimit = 5000;

/// Shows what the slider repeats while the mouse is held beside its handle.
class OpenSlider : public SpeedSlider {
  public:
    using QAbstractSlider::repeatAction;
    using SpeedSlider::SpeedSlider;
};

class SpeedSliderTest : public ::testing::Test {
  protected:
    SpeedSliderTest() {
        auto* layout = new QVBoxLayout(&window);
        slider = new OpenSlider(63, &window);
        slider->setMinimumWidth(400);
        button = new QPushButton(QStringLiteral("Other"), &window);
        layout->addWidget(slider);
        layout->addWidget(button);
        QObject::connect(slider, &SpeedSlider::valueReported, slider, [this] {
            reported.push_back(slider->value());
            if (whileSending) {
                whileSending();
            }
        });
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    void Press() {
        QTest::mousePress(slider, Qt::LeftButton, {}, PlaceOf(*slider, slider->value()));
    }
    void MoveTo(int value) {
        const QPoint place = PlaceOf(*slider, value);
        QMouseEvent move(QEvent::MouseMove, place, slider->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &move);
    }
    /// A move that waits in the queue.
    void PostMoveTo(int value) {
        const QPoint place = PlaceOf(*slider, value);
        QCoreApplication::postEvent(
            slider, new QMouseEvent(QEvent::MouseMove, place, slider->mapToGlobal(place),
                                    Qt::NoButton, Qt::LeftButton, Qt::NoModifier));
    }
    void Release(int value) {
        QTest::mouseRelease(slider, Qt::LeftButton, {}, PlaceOf(*slider, value));
    }
    bool WaitForReports(std::size_t count) {
        return QTest::qWaitFor([&] { return reported.size() >= count; }, kLimit);
    }

    QWidget window;
    OpenSlider* slider = nullptr;
    QPushButton* button = nullptr;
    Values reported;
    std::function<void()> whileSending;
};

TEST_F(SpeedSliderTest, ReportsEachNewValueSetFromCodeOnceAndAtOnce) {
    slider->setValue(5);
    slider->setValue(5);
    slider->setValue(6);
    EXPECT_EQ(reported, (Values{5, 6}));
    Settle();
    EXPECT_EQ(reported, (Values{5, 6}));
}

TEST_F(SpeedSliderTest, ReportsTheValueThatALowerMaximumForces) {
    slider->setValue(60);
    slider->setMaximum(28);
    EXPECT_EQ(reported, (Values{60, 28}));
}

TEST_F(SpeedSliderTest, StepsByOneAndByFive) {
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    ASSERT_TRUE(WaitForReports(1));
    QTest::keyClick(slider, Qt::Key_PageUp);
    ASSERT_TRUE(WaitForReports(2));
    EXPECT_EQ(reported, (Values{1, 6}));
}

TEST_F(SpeedSliderTest, ReportsOnlyTheNewestOfTheValuesPassedOver) {
    Press();
    for (const int value : {3, 8, 13, 21}) {
        MoveTo(value);
    }
    EXPECT_TRUE(reported.empty());
    ASSERT_TRUE(WaitForReports(1));
    Settle();
    EXPECT_EQ(reported, (Values{21}));
    Release(21);
}

TEST_F(SpeedSliderTest, DropsWhatWasPassedOverDuringAnExchangeAndSendsTheLast) {
    whileSending = [this] {
        if (reported.size() == 1) {
            for (const int value : {12, 17, 25, 40}) {
                PostMoveTo(value);
            }
        }
    };
    Press();
    MoveTo(5);
    ASSERT_TRUE(WaitForReports(2));
    Settle();
    EXPECT_EQ(reported, (Values{5, 40}));
    Release(40);
}

TEST_F(SpeedSliderTest, ReportsNothingWhenTheHandIsBackAfterAnExchange) {
    whileSending = [this] {
        if (reported.size() == 1) {
            PostMoveTo(12);
            PostMoveTo(9);
        }
    };
    Press();
    MoveTo(9);
    ASSERT_TRUE(WaitForReports(1));
    Settle();
    EXPECT_EQ(slider->value(), 9);
    EXPECT_EQ(reported, (Values{9}));
    MoveTo(12);
    ASSERT_TRUE(WaitForReports(2));
    EXPECT_EQ(reported, (Values{9, 12}));
    Release(12);
}

TEST_F(SpeedSliderTest, PuttingTheReportedValueThatTheHandHasComeBackToReportsNothing) {
    slider->setValue(9);
    Press();
    MoveTo(12);
    MoveTo(9);
    slider->putValue(9);
    Settle();
    EXPECT_EQ(reported, (Values{9}));
    Release(9);
}

TEST_F(SpeedSliderTest, SendsTheLastValueAlsoAfterTheMouseIsReleased) {
    Press();
    MoveTo(9);
    Release(9);
    ASSERT_TRUE(WaitForReports(1));
    EXPECT_EQ(reported, (Values{9}));
}

TEST_F(SpeedSliderTest, WaitsWhileAHandlerLetsTheEventLoopTurn) {
    {
        const NestedLoop nested;
        Press();
        MoveTo(9);
        Settle();
        EXPECT_TRUE(reported.empty());
    }
    ASSERT_TRUE(WaitForReports(1));
    EXPECT_EQ(reported, (Values{9}));
    Release(9);
}

TEST_F(SpeedSliderTest, AValueFromCodeReplacesOneOfTheUserThatIsNotReportedYet) {
    Press();
    MoveTo(9);
    slider->putValue(0);
    Settle();
    EXPECT_EQ(reported, (Values{0}));
    Release(0);
}

TEST_F(SpeedSliderTest, PuttingTheValueThatTheUserHasJustChosenReportsIt) {
    slider->setValue(9);
    Press();
    MoveTo(0);
    slider->putValue(0);
    EXPECT_EQ(reported, (Values{9, 0}));
    Settle();
    EXPECT_EQ(reported, (Values{9, 0}));
    Release(0);
}

TEST_F(SpeedSliderTest, PuttingTheReportedValueReportsNothing) {
    slider->putValue(4);
    slider->putValue(4);
    EXPECT_EQ(reported, (Values{4}));
}

TEST_F(SpeedSliderTest, AWheelThatPassesByDoesNotDrive) {
    button->setFocus();
    const QPointF place = slider->rect().center();
    QWheelEvent wheel(place, slider->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(slider, &wheel);
    Settle();
    EXPECT_EQ(slider->value(), 0);
    EXPECT_TRUE(reported.empty());
    slider->setFocus();
    QCoreApplication::sendEvent(slider, &wheel);
    ASSERT_TRUE(WaitForReports(1));
    EXPECT_GT(slider->value(), 0);
}

TEST_F(SpeedSliderTest, LetsGoOfTheMouseWhenABoxComesUp) {
    QtMessageBox messageBox;
    int boxes = 0;
    whileSending = [&] {
        if (reported.size() > 1) {
            return;
        }
        QTimer::singleShot(0, &window, [&] {
            ++boxes;
            EXPECT_FALSE(slider->isSliderDown());
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        messageBox.Tell("No response from Zelvar", BoxIcon::Exclamation);
    };
    Press();
    MoveTo(20);
    EXPECT_TRUE(slider->isSliderDown());
    ASSERT_TRUE(WaitForReports(1));
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(slider->isSliderDown());

    // The hand has not let go yet; the slider has.
    MoveTo(50);
    Settle();
    EXPECT_EQ(slider->value(), 20);

    QSignalSpy clicked(button, &QPushButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);

    Press();
    MoveTo(30);
    Release(30);
    ASSERT_TRUE(WaitForReports(2));
    EXPECT_EQ(reported, (Values{20, 30}));
}

TEST_F(SpeedSliderTest, StopsSteppingWhenABoxComesUpWhileTheGrooveIsHeld) {
    QtMessageBox messageBox;
    int boxes = 0;
    whileSending = [&] {
        QTimer::singleShot(0, &window, [&] {
            ++boxes;
            EXPECT_EQ(slider->repeatAction(), QAbstractSlider::SliderNoAction);
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        messageBox.Tell("No response from Zelvar", BoxIcon::Exclamation);
    };
    QTest::mousePress(slider, Qt::LeftButton, {}, PlaceOf(*slider, 60));
    EXPECT_NE(slider->repeatAction(), QAbstractSlider::SliderNoAction);
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes > 0; }, kLimit));
    EXPECT_EQ(reported, (Values{5}));
}

}  // namespace
}  // namespace zelvar::testing
