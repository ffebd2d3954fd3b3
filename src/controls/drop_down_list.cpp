// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/drop_down_list.h"

#include <QScopedValueRollback>

#include "controls/wheel_filter.h"

namespace zelvar {

DropDownList::DropDownList(QWidget* parent) : QComboBox(parent) {
    FilterWheel(*this, Wheel::Never);
    // A choice by the user that changes the entry emits both signals, in this order.
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!filling_ && index >= 0) {
            reported_ = true;
            Q_EMIT chosen();
        }
    });
    connect(this, &QComboBox::activated, this, [this] {
        if (!reported_) {
            Q_EMIT chosen();
        }
        reported_ = false;
    });
}

void DropDownList::Clear() {
    const QScopedValueRollback<bool> filling(filling_, true);
    clear();
}

void DropDownList::Append(const QString& text, const QVariant& itemData) {
    const QScopedValueRollback<bool> filling(filling_, true);
    const int selected = currentIndex();
    addItem(text, itemData);
    setCurrentIndex(selected);
}

int DropDownList::SelectedData(int none) const {
    return currentIndex() < 0 ? none : currentData().toInt();
}

void DropDownList::keyPressEvent(QKeyEvent* event) {
    reported_ = false;
    QComboBox::keyPressEvent(event);
}

void DropDownList::showPopup() {
    reported_ = false;
    QComboBox::showPopup();
}

}  // namespace zelvar
