// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "lookup.h"

#include <QApplication>

namespace zelvar::e2e {

QWidget& FindControl(const QString& name) {
    const QString window = name.contains(u'/') ? name.section(u'/', 0, 0) : QString();
    const QString plain = name.section(u'/', -1);
    QWidget* found = nullptr;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() != plain ||
            (!window.isEmpty() && widget->window()->objectName() != window)) {
            continue;
        }
        if (found != nullptr) {
            throw ProbeError(QStringLiteral("more than one control is called ") + name);
        }
        found = widget;
    }
    if (found == nullptr) {
        throw ProbeError(QStringLiteral("no control is called ") + name);
    }
    return *found;
}

QWidget* FindWindow(const QString& name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name) {
            return widget;
        }
    }
    return nullptr;
}

}  // namespace zelvar::e2e
