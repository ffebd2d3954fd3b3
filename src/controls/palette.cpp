// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/palette.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace zelvar {

namespace {

/// Relative luminance of a colour as WCAG 2 defines it, 0..1.
double Luminance(const QColor& colour) {
    const auto channel = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) +
           0.0722 * channel(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

/// What WCAG 2 asks of large or bold text, and of other text. Light letters on a dark ground look
/// thinner than they are, so there the higher one counts.
constexpr double kReadableOnLight = 3.0;
constexpr double kReadableOnDark = 4.5;

}  // namespace

QColor ColourOf(std::uint32_t bgr) {
    constexpr std::uint32_t kChannel = 0xFF;
    return QColor(static_cast<int>(bgr & kChannel), static_cast<int>((bgr >> 8) & kChannel),
                  static_cast<int>((bgr >> 16) & kChannel));
}

QColor ReadableOn(const QColor& ground) {
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(black, ground) >= Contrast(white, ground) ? black : white;
}

void SetTextColour(QWidget* control, std::uint32_t bgr) {
    const QColor colour = ColourOf(bgr);
    const QColor ground = QApplication::palette(control).color(QPalette::Window);
    const double needed =
        ReadableOn(ground) == QColor(Qt::white) ? kReadableOnDark : kReadableOnLight;
    const bool readable = Contrast(colour, ground) >= needed;
    QPalette palette;
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::Text, colour);
    if (!readable) {
        palette.setColor(QPalette::Window, QColor(Qt::white));
    }
    control->setPalette(palette);
    control->setAutoFillBackground(!readable);
}

void SetGroundColour(QWidget* control, std::uint32_t bgr) {
    const QColor ground = ColourOf(bgr);
    const bool isField = qobject_cast<QLineEdit*>(control) != nullptr;
    QPalette palette;
    palette.setColor(isField ? QPalette::Base : QPalette::Window, ground);
    palette.setColor(isField ? QPalette::Text : QPalette::WindowText, QColor(Qt::black));
    // Not for a frame: it would hand the button colour down to the push buttons on it.
    if (qobject_cast<QAbstractButton*>(control) != nullptr) {
        palette.setColor(QPalette::Button, ground);
        palette.setColor(QPalette::ButtonText, QColor(Qt::black));
    }
    control->setPalette(palette);
    control->setAutoFillBackground(true);
}

void RestoreSystemColour(QWidget* control) {
    control->setPalette(QPalette());
    control->setAutoFillBackground(false);
}

}  // namespace zelvar
