// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/label_stepper.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>

#include "controls/number_text.h"
#include "controls/wheel_filter.h"

namespace zelvar {

namespace {

/// Pixels left of the arrows, for the outline of the control.
constexpr int kFrame = 1;

}  // namespace

LabelStepper::LabelStepper(QLabel* buddy, int minimum, int maximum, QWidget* parent)
    : QAbstractSpinBox(parent), buddy_(buddy), minimum_(minimum), maximum_(maximum) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccelerated(true);
    FilterWheel(*this, Wheel::WithFocus);
    // Hidden; it holds the number for assistive technology.
    lineEdit()->setReadOnly(true);
    lineEdit()->setVisible(false);
    lineEdit()->setText(QString::number(minimum));
    buddy_->setText(QString::number(minimum));
}

void LabelStepper::setMinimum(int minimum) {
    minimum_ = minimum;
    setValue(value());
}

void LabelStepper::setMaximum(int maximum) {
    maximum_ = maximum;
    setValue(value());
}

int LabelStepper::value() const {
    return ValToInt(buddy_->text().toStdString(), minimum_, maximum_);
}

void LabelStepper::setValue(int value) {
    const QString text = QString::number(std::clamp(value, minimum_, maximum_));
    if (text != buddy_->text()) {
        buddy_->setText(text);
        lineEdit()->setText(text);
        Q_EMIT valueChanged();
    }
}

void LabelStepper::stepBy(int steps) {
    setValue(value() + steps);
}

QAbstractSpinBox::StepEnabled LabelStepper::stepEnabled() const {
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, value() < maximum_);
    enabled.setFlag(StepDownEnabled, value() > minimum_);
    return enabled;
}

QSize LabelStepper::sizeHint() const {
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.direction = Qt::LeftToRight;
    const QSize content(0, lineEdit()->sizeHint().height());
    QSize size = style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
    // Styles reserve space for a text before the arrows.
    option.rect = QRect(QPoint(), size);
    const QRect up =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    size.rwidth() -= up.left() - kFrame;
    return size;
}

QSize LabelStepper::minimumSizeHint() const {
    return sizeHint();
}

}  // namespace zelvar
