// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/arrange.h"

#include <QHBoxLayout>

namespace zelvar {

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
