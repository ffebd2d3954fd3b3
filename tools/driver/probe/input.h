// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <QWindow>

#include <functional>

namespace zelvar::e2e {

/// The mouse and the keyboard: events enter where the window system hands them in, so that modal
/// windows, popups, focus and event filters have their say.
class Input {
  public:
    /// @param later runs a task from the event loop before anything else that waits to be run
    explicit Input(std::function<void(std::function<void()>)> later);

    void Press(QWidget& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void Release(QWidget& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    /// The release comes from the event loop: a box that the press opened is there by then.
    void Click(QWidget& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void DoubleClick(QWidget& control);
    /// Clicks into a field, selects what it shows and types over it.
    void Type(QWidget& field, const QString& text);
    /// Gives the control the keyboard and presses keys such as "Space" or "Ctrl+A".
    void Key(QWidget& control, const QString& keys);
    /// Chooses a row of a list through its popup.
    void Choose(QComboBox& list, int row);
    /// Something is being done and has not had its effect yet.
    bool IsUnderWay() const { return severalSteps_ || (handingOver_ && !arrived_); }
    /// To be called with every event before it reaches its receiver.
    void Notice(const QObject* watched, const QEvent* event);
    /// Brings a tab to the front by its tab.
    void ClickAt(QWidget& control, QPoint place);

    /// Why a user could not click the control; empty when nothing is in the way.
    static QString Obstacle(const QWidget& control);

  private:
    void Activate(QWidget& window);
    void Mouse(QWidget& control, QPoint place, QEvent::Type type, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers);
    /// Puts an event in where the window system does. A message box that it opens runs its own
    /// event loop in here.
    void HandOver(const std::function<void()>& put);
    void KeyStroke(QWindow& window, int key, Qt::KeyboardModifiers modifiers, const QString& text);

    std::function<void(std::function<void()>)> later_;
    Qt::MouseButtons held_;
    bool severalSteps_ = false;
    bool handingOver_ = false;
    /// The event that is being handed over has got to its window.
    bool arrived_ = false;
    /// In milliseconds; moves on so far between clicks that two of them are no double click.
    int time_ = 0;
};

}  // namespace zelvar::e2e
