// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/spin_field.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>

#include "controls/number_text.h"
#include "controls/wheel_filter.h"

namespace zelvar {

SpinField::SpinField(const QString& spinName, const QString& fieldName,
                     const QString& accessibleName, int minimum, int maximum, QWidget* parent)
    : QAbstractSpinBox(parent), minimum_(minimum), maximum_(maximum) {
    setObjectName(spinName);
    setAccessibleName(accessibleName);
    lineEdit()->setObjectName(fieldName);
    lineEdit()->setAccessibleName(accessibleName);
    lineEdit()->setText(QString::number(std::clamp(0, minimum, maximum)));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccelerated(true);
    FilterWheel(*this, Wheel::WithFocus);
    connect(lineEdit(), &QLineEdit::textChanged, this, &SpinField::textChanged);
}

int SpinField::value() const {
    return ValToInt(text().toStdString(), minimum_, maximum_);
}

void SpinField::clamp() {
    const double number = Val(text().toStdString());
    if (number < minimum_) {
        lineEdit()->setText(QString::number(minimum_));
    } else if (number > maximum_) {
        lineEdit()->setText(QString::number(maximum_));
    }
}

void SpinField::stepBy(int steps) {
    const int number = std::clamp(value() + steps, minimum_, maximum_);
    lineEdit()->setText(QString::number(number));
    lineEdit()->selectAll();
    Q_EMIT stepped();
}

QValidator::State SpinField::validate(QString& /*input*/, int& /*position*/) const {
    return QValidator::Acceptable;
}

void SpinField::fixup(QString& /*input*/) const {}

QAbstractSpinBox::StepEnabled SpinField::stepEnabled() const {
    const double number = Val(text().toStdString());
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, number < maximum_);
    enabled.setFlag(StepDownEnabled, number > minimum_);
    return enabled;
}

QSize SpinField::sizeHint() const {
    ensurePolished();
    const int digits = static_cast<int>(
        std::max(QString::number(maximum_).size(), QString::number(minimum_).size()));
    const QString widest(digits + 1, QLatin1Char('0'));
    constexpr int kCursorWidth = 2;
    const QSize content(fontMetrics().horizontalAdvance(widest) + kCursorWidth,
                        lineEdit()->sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

QSize SpinField::minimumSizeHint() const {
    return sizeHint();
}

SpinField* ClampedField(const QString& spinName, const QString& fieldName,
                        const QString& accessibleName, int minimum, int maximum, QWidget* parent,
                        QLabel* buddy) {
    auto* field = new SpinField(spinName, fieldName, accessibleName, minimum, maximum, parent);
    QObject::connect(field, &SpinField::textChanged, field, &SpinField::clamp);
    if (buddy != nullptr) {
        buddy->setBuddy(field);
    }
    return field;
}

}  // namespace zelvar
