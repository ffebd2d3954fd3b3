// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace zelvar::tour {
namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 60;

/// A caption in small print.
QImage Caption(const char* text, QColor ink = Qt::black) {
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(ink);
    painter.drawText(QPointF(10, 30), QString::fromLatin1(text));
    return picture;
}

/// Text needs an application.
class Comparison : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int count = 1;
        static char name[] = "tour_tests";
        static char* words[] = {name, nullptr};
        static const QGuiApplication application(count, words);
    }
};

TEST_F(Comparison, APictureIsAlikeItself) {
    EXPECT_EQ(Difference(Caption("Reset Fault"), Caption("Reset Fault")), std::nullopt);
}

TEST_F(Comparison, EdgesMayBeSmoothedOtherwise) {
    constexpr double kLighter = 1.1;
    QImage other = Caption("Reset Fault");
    for (int y = 0; y < other.height(); ++y) {
        for (int x = 0; x < other.width(); ++x) {
            const QColor colour = other.pixelColor(x, y);
            // Every shade between the ink and the paper becomes a tenth lighter.
            other.setPixelColor(
                x, y, QColor::fromHsv(0, 0, qMin(255, qRound(colour.value() * kLighter))));
        }
    }
    EXPECT_EQ(Difference(Caption("Reset Fault"), other), std::nullopt);
}

TEST_F(Comparison, AnotherLetterIsADifference) {
    EXPECT_TRUE(Difference(Caption("Reset Fault"), Caption("Reset Faulk")));
    EXPECT_TRUE(Difference(Caption("Get HFI"), Caption("Set HFI")));
    EXPECT_TRUE(Difference(Caption("Unlink Up"), Caption("Unlink Ub")));
}

TEST_F(Comparison, AMissingWordIsADifference) {
    EXPECT_TRUE(Difference(Caption("Reset Fault"), Caption("Reset")));
}

TEST_F(Comparison, AnotherColourIsADifference) {
    EXPECT_TRUE(Difference(Caption("Run", Qt::blue), Caption("Run", Qt::red)));
}

TEST_F(Comparison, AnotherSizeIsADifference) {
    const QImage picture = Caption("Run");
    EXPECT_EQ(Difference(picture, picture.copy(0, 0, kWidth - 1, kHeight)),
              "is 199 x 60 pixels large instead of 200 x 60");
}

TEST_F(Comparison, ACellMayDifferByItsToleranceOnly) {
    constexpr int kTolerance = 16;
    QImage ground(8, 8, QImage::Format_RGB32);
    ground.fill(QColor(100, 100, 100));
    QImage other = ground;
    other.fill(QColor(100, 100 + kTolerance, 100));
    EXPECT_EQ(Difference(ground, other), std::nullopt);
    other.fill(QColor(100, 100 + kTolerance + 1, 100));
    EXPECT_EQ(Difference(ground, other), "shows something else at 0, 0");
}

}  // namespace
}  // namespace zelvar::tour
