// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/secondary_window.h"

#include <QCloseEvent>
#include <QShortcut>

namespace zelvar {

SecondaryWindow::SecondaryWindow(const QString& name, const QString& caption)
    : QWidget(nullptr, Qt::Window) {
    setObjectName(name);
    setWindowTitle(caption);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &QWidget::close);
}

void SecondaryWindow::BringIntoView(bool activate) {
    setAttribute(Qt::WA_ShowWithoutActivating, !activate);
    if (isMinimized()) {
        showNormal();
    } else {
        show();
    }
    raise();
    if (activate) {
        activateWindow();
    }
}

void SecondaryWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closed();
}

}  // namespace zelvar
