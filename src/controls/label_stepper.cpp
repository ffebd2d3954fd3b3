// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/label_stepper.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

#include <algorithm>

#include "controls/number_text.h"

namespace zelvar {

namespace {

/// Pixels left of the arrows, where the outline of the control is painted.
constexpr int kFrame = 1;

}  // namespace

UpDown::UpDown(QLabel* buddy, int minimum, int maximum, QWidget* parent)
    : QAbstractSpinBox(parent), buddy_(buddy), minimum_(minimum), maximum_(maximum) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccelerated(true);
    // Not shown; it holds the number for assistive technology.
    lineEdit()->setReadOnly(true);
    lineEdit()->setVisible(false);
    lineEdit()->setText(QString::number(minimum));
    buddy_->setText(QString::number(minimum));
}

int UpDown::Value() const {
    return ValToInt(buddy_->text().toStdString(), minimum_, maximum_);
}

void UpDown::SetValue(int value) {
    const QString text = QString::number(std::clamp(value, minimum_, maximum_));
    if (text != buddy_->text()) {
        buddy_->setText(text);
        lineEdit()->setText(text);
        Q_EMIT Change();
    }
}

void UpDown::stepBy(int steps) {
    SetValue(Value() + steps);
}

QAbstractSpinBox::StepEnabled UpDown::stepEnabled() const {
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, Value() < maximum_);
    enabled.setFlag(StepDownEnabled, Value() > minimum_);
    return enabled;
}

QSize UpDown::sizeHint() const {
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.direction = Qt::LeftToRight;
    const QSize content(0, lineEdit()->sizeHint().height());
    QSize size = style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
    // Styles leave room for a text before the arrows.
    option.rect = QRect(QPoint(), size);
    const QRect up =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    size.rwidth() -= up.left() - kFrame;
    return size;
}

QSize UpDown::minimumSizeHint() const {
    return sizeHint();
}

void UpDown::wheelEvent(QWheelEvent* event) {
    // Scrolling past a control must not change it.
    if (hasFocus()) {
        QAbstractSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

}  // namespace zelvar
