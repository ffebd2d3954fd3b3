// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/press_button.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace zelvar {

namespace {

/// The modifier keys that count; the keypad and a change of group do not.
constexpr Qt::KeyboardModifiers kModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

}  // namespace

PressButton::PressButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    connect(this, &QPushButton::clicked, this, [this] { Q_EMIT mouseDown(false); });
}

void PressButton::mousePressEvent(QMouseEvent* event) {
    event->accept();
    // Shown as pressed while it works; another window may have the mouse at the release.
    setDown(true);
    repaint();
    Q_EMIT mouseDown(event->button() == Qt::LeftButton &&
                     (event->modifiers() & kModifiers) == Qt::ShiftModifier);
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
