// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/drive_controls.h"

#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleFactory>

#include "controls/naming.h"

namespace zelvar {

namespace {

/// 0xRRGGBB; dark enough for white text, also after the style has lightened it.
constexpr QRgb kEstopRed = 0xA00000;
constexpr int kEstopWidth = 140;
constexpr int kEstopHeight = 48;

}  // namespace

void DriveDesk::ForceSpeedsToZero() {
    const QScopedValueRollback<bool> inhibit(inhibitSpeedEvents, true);
    analogSpeed->Put(0);
    dccSpeed->Put(0);
}

QLabel* CaptionLabel(const QString& name, const QString& caption, QWidget* parent) {
    return Named(new QLabel(caption, parent), name, caption);
}

SpinField* ClampedField(const QString& spinName, const QString& fieldName, const QString& inWords,
                        int minimum, int maximum, QWidget* parent, QLabel* buddy) {
    auto* field = new SpinField(spinName, fieldName, inWords, minimum, maximum, parent);
    QObject::connect(field, &SpinField::Change, field, [field] { field->Clamp(); });
    if (buddy != nullptr) {
        buddy->setBuddy(field);
    }
    return field;
}

QPushButton* EstopButton(const char* name, const char* inWords, QWidget* parent) {
    auto* button = Named(new QPushButton(QStringLiteral("E-Stop!"), parent), name, inWords);
    // Native styles paint buttons in their own colours; this one takes them from the palette.
    if (QStyle* style = QStyleFactory::create(QStringLiteral("Fusion"))) {
        style->setParent(button);
        button->setStyle(style);
    }
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(kEstopRed));
    palette.setColor(QPalette::ButtonText, Qt::white);
    button->setPalette(palette);
    QFont font = button->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    button->setFont(font);
    button->setMinimumSize(kEstopWidth, kEstopHeight);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

QLabel* SliderReadOut(const QString& name, const SpeedSlider* slider, int widest) {
    auto* label = Named(new QLabel(QString::number(slider->value()), slider->parentWidget()), name,
                        slider->accessibleName() + QStringLiteral(", value"));
    label->setToolTip(QStringLiteral("Where the slider stands"));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QString::number(widest)));
    QObject::connect(slider, &QSlider::valueChanged, label,
                     [label](int value) { label->setText(QString::number(value)); });
    return label;
}

QLayout* Row(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls) {
        row->addWidget(control);
    }
    row->addStretch();
    return row;
}

void SetTabOrder(std::initializer_list<QWidget*> controls) {
    QWidget* previous = nullptr;
    for (QWidget* control : controls) {
        if (previous != nullptr) {
            QWidget::setTabOrder(previous, control);
        }
        previous = control;
    }
}

void KeepPlaceWhenHidden(QWidget* control) {
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

}  // namespace zelvar
