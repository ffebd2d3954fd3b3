// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/palette.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace zelvar::testing {
namespace {

double Luminance(const QColor& colour) {
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double ContrastOf(const QLabel& label) {
    const double a = Luminance(label.palette().color(QPalette::WindowText));
    const double b = Luminance(label.palette().color(QPalette::Window));
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(ColourTest, BlueStandsInTheHighByte) {
    EXPECT_EQ(ColourOf(0x000000), QColor(0, 0, 0));
    EXPECT_EQ(ColourOf(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(ColourOf(0x00FF00), QColor(0, 255, 0));
    EXPECT_EQ(ColourOf(0xFF0000), QColor(0, 0, 255));
    EXPECT_EQ(ColourOf(0x123456), QColor(0x56, 0x34, 0x12));
}

struct ThemeRow {
    const char* name;
    QRgb window;
    QRgb text;
};

class Themes : public ::testing::TestWithParam<ThemeRow> {
  protected:
    Themes() {
        QPalette theme;
        theme.setColor(QPalette::Window, QColor(GetParam().window));
        theme.setColor(QPalette::WindowText, QColor(GetParam().text));
        QApplication::setPalette(theme);
    }
    ~Themes() override { QApplication::setPalette(before_); }

  private:
    QPalette before_ = QApplication::palette();
};

TEST_P(Themes, LeaveEveryStatusColourReadable) {
    for (const std::uint32_t colour : {0x000000U, 0x0000FFU, 0xFF0000U}) {
        QLabel label(QStringLiteral("System Status = Run"));
        SetTextColour(&label, colour);
        EXPECT_EQ(label.palette().color(QPalette::WindowText), ColourOf(colour));
        EXPECT_GE(ContrastOf(label), 3.0) << std::hex << colour;
        // A ground of its own has to be painted to be seen.
        EXPECT_EQ(label.autoFillBackground(),
                  label.palette().color(QPalette::Window) != QColor(GetParam().window));
    }
}

/// Red reaches 3.2 on the ground of a dark theme, and 4.0 on white.
TEST(ColourTest, RedGetsAWhiteGroundInADarkThemeOnly) {
    const QPalette before = QApplication::palette();
    for (const auto& [window, white] :
         {std::pair(0xFFEFEFEF, false), std::pair(0xFF323232, true)}) {
        QPalette theme;
        theme.setColor(QPalette::Window, QColor(QRgb(window)));
        QApplication::setPalette(theme);
        QLabel label;
        SetTextColour(&label, 0x0000FFU);
        EXPECT_EQ(label.autoFillBackground(), white) << std::hex << window;
        EXPECT_EQ(label.palette().color(QPalette::Window) == QColor(Qt::white), white);
    }
    QApplication::setPalette(before);
}

TEST_P(Themes, FollowAChangeOfColour) {
    QLabel label;
    SetTextColour(&label, 0x000000);
    SetTextColour(&label, 0xFF0000);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(0, 0, 255));
    EXPECT_GE(ContrastOf(label), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Grounds, Themes,
                         ::testing::Values(ThemeRow{"Light", 0xFFEFEFEF, 0xFF000000},
                                           ThemeRow{"Dark", 0xFF202020, 0xFFEEEEEE},
                                           ThemeRow{"Black", 0xFF000000, 0xFFFFFFFF},
                                           ThemeRow{"Middle", 0xFF777777, 0xFFFFFFFF}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
