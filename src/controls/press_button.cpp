// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/press_button.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace zelvar {

namespace {

int ButtonCode(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return kLeftButton;
        case Qt::RightButton:
            return kRightButton;
        case Qt::MiddleButton:
            return kMiddleButton;
        default:
            return 0;
    }
}

int ShiftCode(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? kShiftKey : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? kCtrlKey : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? kAltKey : 0);
}

}  // namespace

PressButton::PressButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    connect(this, &QPushButton::clicked, this, [this] { Q_EMIT MouseDown(kLeftButton, 0); });
}

void PressButton::mousePressEvent(QMouseEvent* event) {
    event->accept();
    // Shown as pressed while it works; the release may come when another window has the mouse.
    setDown(true);
    repaint();
    Q_EMIT MouseDown(ButtonCode(event->button()), ShiftCode(event->modifiers()));
    setDown(false);
}

void PressButton::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void PressButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) {
            click();
        }
        return;
    }
    QPushButton::keyPressEvent(event);
}

}  // namespace zelvar
