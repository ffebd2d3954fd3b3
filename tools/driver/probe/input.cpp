// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "input.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QPointer>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTest>

#include <utility>

namespace zelvar::e2e {

namespace {

constexpr int kStepMs = 10;         // between the events of one click
constexpr int kNextClickMs = 2000;  // longer than any double-click interval
constexpr int kIndicatorPixels = 8;

/// Where a user clicks: a check box or option reacts on its indicator, not on the room behind it.
QPoint Spot(const QWidget& control) {
    const bool hasIndicator = qobject_cast<const QCheckBox*>(&control) != nullptr ||
                              qobject_cast<const QRadioButton*>(&control) != nullptr;
    return hasIndicator ? QPoint(kIndicatorPixels, control.height() / 2) : control.rect().center();
}

}  // namespace

Input::Input(std::function<void(std::function<void()>)> later) : later_(std::move(later)) {}

void Input::Notice(const QObject* watched, const QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched->isWindowType() &&
        (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
         type == QEvent::KeyPress || type == QEvent::KeyRelease)) {
        arrived_ = true;
    }
}

void Input::HandOver(const std::function<void()>& put) {
    const QScopedValueRollback<bool> handingOver(handingOver_, true);
    arrived_ = false;
    put();
    // The platform may have queued it.
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers |
                                    QEventLoop::X11ExcludeTimers);
}

/// A window manager gives a clicked window the keyboard unless a modal one is in front.
void Input::Activate(QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    const bool blocked = modal != nullptr && modal != &window;
    if (!blocked && QApplication::activePopupWidget() == nullptr && !window.isActiveWindow()) {
        const QScopedValueRollback<bool> severalSteps(severalSteps_, true);
        HandOver([&window] { window.activateWindow(); });
    }
}

QString Input::Obstacle(const QWidget& control) {
    const QWidget* window = control.window();
    if (!control.isVisible() || window->windowHandle() == nullptr) {
        return control.objectName() + QStringLiteral(" is not visible");
    }
    const QWidget* at = window->childAt(control.mapTo(window, Spot(control)));
    if (at != &control && !control.isAncestorOf(at) && window != &control) {
        return control.objectName() + QStringLiteral(" is covered or cut off");
    }
    return {};
}

void Input::Mouse(QWidget& control, QPoint place, QEvent::Type type, Qt::MouseButton button,
                  Qt::KeyboardModifiers modifiers) {
    QWidget* window = control.window();
    QWindow* handle = window->windowHandle();
    if (handle == nullptr) {
        return;
    }
    held_.setFlag(button, type == QEvent::MouseButtonPress);
    time_ += kStepMs;
    const QPoint local = control.mapTo(window, place);
    HandOver([&] {
        qt_handleMouseEvent(handle, local, handle->mapToGlobal(local), held_, button, type,
                            modifiers, time_);
    });
}

void Input::Press(QWidget& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    Activate(*control.window());
    time_ += kNextClickMs;
    Mouse(control, Spot(control), QEvent::MouseButtonPress, button, modifiers);
}

void Input::Release(QWidget& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    Mouse(control, Spot(control), QEvent::MouseButtonRelease, button, modifiers);
}

void Input::Click(QWidget& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    const QPointer<QWidget> target(&control);
    later_([this, target, button, modifiers] {
        if (target != nullptr) {
            Release(*target, button, modifiers);
        }
        held_.setFlag(button, false);
    });
    Press(control, button, modifiers);
}

void Input::ClickAt(QWidget& control, QPoint place) {
    // What is asked next must not come between the press and the release, or the next tab.
    const QScopedValueRollback<bool> severalSteps(severalSteps_, true);
    Activate(*control.window());
    time_ += kNextClickMs;
    Mouse(control, place, QEvent::MouseButtonPress, Qt::LeftButton, {});
    Mouse(control, place, QEvent::MouseButtonRelease, Qt::LeftButton, {});
}

void Input::DoubleClick(QWidget& control) {
    const QScopedValueRollback<bool> severalSteps(severalSteps_, true);
    ClickAt(control, Spot(control));
    Mouse(control, Spot(control), QEvent::MouseButtonPress, Qt::LeftButton, {});
    Mouse(control, Spot(control), QEvent::MouseButtonRelease, Qt::LeftButton, {});
}

void Input::KeyStroke(QWindow& window, int key, Qt::KeyboardModifiers modifiers,
                      const QString& text) {
    const QPointer<QWindow> target(&window);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (target != nullptr) {
            HandOver([&] { qt_handleKeyEvent(target, type, key, modifiers, text); });
        }
    }
}

void Input::Type(QWidget& field, const QString& text) {
    const QScopedValueRollback<bool> severalSteps(severalSteps_, true);
    ClickAt(field, field.rect().center());
    QWindow& window = *field.window()->windowHandle();
    KeyStroke(window, Qt::Key_A, Qt::ControlModifier, {});
    if (text.isEmpty()) {
        KeyStroke(window, Qt::Key_Delete, {}, {});
    }
    for (const QChar letter : text) {
        KeyStroke(window, letter.toUpper().unicode(), {}, letter);
    }
}

void Input::Key(QWidget& control, const QString& keys) {
    Activate(*control.window());
    control.setFocus(Qt::TabFocusReason);
    const QKeySequence sequence(keys);
    for (int i = 0; i < sequence.count(); ++i) {
        const QKeyCombination combination = sequence[static_cast<uint>(i)];
        const int key = combination.key();
        const bool prints = key < Qt::Key_Escape && !combination.keyboardModifiers();
        KeyStroke(*control.window()->windowHandle(), key, combination.keyboardModifiers(),
                  prints ? QString(QChar(key)).toLower() : QString());
    }
}

void Input::Choose(QComboBox& list, int row) {
    const QScopedValueRollback<bool> severalSteps(severalSteps_, true);
    ClickAt(list, list.rect().center());
    QWindow* popup = list.view()->window()->windowHandle();
    if (popup == nullptr || !list.view()->isVisible()) {
        return;
    }
    KeyStroke(*popup, Qt::Key_Home, {}, {});
    for (int i = 0; i < row; ++i) {
        KeyStroke(*popup, Qt::Key_Down, {}, {});
    }
    KeyStroke(*popup, Qt::Key_Return, {}, {});
}

}  // namespace zelvar::e2e
