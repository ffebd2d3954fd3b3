// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/drive_controls.h"

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

QPushButton* EstopButton(const char* name, const char* accessibleName, QWidget* parent) {
    auto* button = Named(new QPushButton(QStringLiteral("E-Stop!"), parent), name, accessibleName);
    // Native styles paint buttons in their own colours; Fusion takes them from the palette.
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

}  // namespace zelvar
