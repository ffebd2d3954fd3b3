// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "app/main_window.h"
#include "platform/handler_gate.h"
#include "support/doubles.h"

namespace zelvar::testing {

/// The names of all controls below a widget, for the message of a search that failed.
std::string NamesBelow(const QWidget& root);

/// A control below a widget. Fails the test, naming what there is, when it is not found.
template <typename Control = QWidget>
Control& FindBelow(QWidget& root, const char* name) {
    auto* control = root.findChild<Control*>(QString::fromUtf8(name));
    if (control == nullptr) {
        ADD_FAILURE() << "no control " << name << " of that kind; there are: " << NamesBelow(root);
        throw std::runtime_error(name);
    }
    return *control;
}

/// A window of the program, shown or not; null while it is not loaded.
QWidget* FindWindow(const char* name);

/// The main window and hands to work it with, on a line that the fixture behind it brings along.
class WindowHands : public ::testing::Test {
  protected:
    WindowHands();
    ~WindowHands() override;

    /// Makes the window and shows it. @param line outlives the window
    void ShowWindowOn(SerialPort& line);

    template <typename Control = QWidget>
    Control& Find(const char* name) {
        return FindBelow<Control>(*window, name);
    }

    /// Presses a button of the main window with the mouse. Its tab comes to the front first.
    void Click(const char* name);

    /// Chooses an entry of a list as a user does. Fails when there is no such entry.
    void Choose(const char* list, const QString& entry);

    /// Types a text over what a field shows.
    void Type(const char* field, const QString& text);

    QString TextOf(const char* name);

    /// One tick of the poll timer, if it is enabled.
    void Tick();

    /// Brings the tab that holds a control to the front.
    void ShowTabOf(QWidget& control);

    FakeClock clock;
    FakeTimer timer;
    FakeMessageBox messageBox;
    HandlerGate gate;
    std::unique_ptr<MainWindow> window;
};

/// The main window with everything around it doubled: the line, the clock, the timer and the
/// message boxes.
class WindowFixture : public WindowHands {
  protected:
    WindowFixture() { ShowWindowOn(port); }
    ~WindowFixture() override { window.reset(); }

    /// Chooses port 1, which opens it, and forgets how that went.
    void OpenPort();

    ScriptedPort port{clock};
};

}  // namespace zelvar::testing
