// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "app/main_window.h"
#include "platform/nested_loop.h"
#include "support/doubles.h"

namespace zelvar::testing {

/// The names of all controls below a widget, for the message of a search that failed.
std::string NamesBelow(const QWidget& root);

/// A control below a widget. Fails the test, naming what there is, when it is not found.
template <typename Control = QWidget>
Control& FindBelow(QWidget& root, std::string_view name) {
    auto* control = root.findChild<Control*>(QString::fromUtf8(name.data(), name.size()));
    if (control == nullptr) {
        ADD_FAILURE() << "no control " << name << " of that kind; there are: " << NamesBelow(root);
        throw std::runtime_error(std::string(name));
    }
    return *control;
}

/// A window of the program, shown or not; null while it is not loaded.
QWidget* FindWindow(const std::string& name);

/// Where a user clicks a control: a check box or option reacts on its indicator and caption, not on
/// the room behind them.
QPoint SpotOf(const QWidget& control);

/// Lets the event loop turn until a zero-delay timer that starts now has fired.
void Settle();

/// The main window and hands to work it with, on a line that the fixture behind it brings along.
/// What acts on a control brings its tab to the front first, and fails when it is hidden. The
/// end-to-end tests have the same words, in tools/driver/harness/driven_program.h.
class WindowHands : public ::testing::Test {
  protected:
    WindowHands();
    ~WindowHands() override;

    /// Makes the window and shows it. @param line outlives the window
    void ShowWindowOn(SerialPort& line);
    /// The same with other message boxes than `messageBox`. @param boxes outlives the window
    void ShowWindowOn(SerialPort& line, MessageBox& boxes);

    template <typename Control = QWidget>
    Control& Find(std::string_view name) {
        return FindBelow<Control>(*window, name);
    }

    void Click(const std::string& button);
    void DoubleClick(const std::string& control);
    /// Chooses an entry of a list as a user does. Fails when there is no such entry.
    void Choose(const std::string& list, const std::string& entry);
    /// Types a text over what a field shows.
    void Type(const std::string& field, const std::string& text);
    void Type(const std::string& field, int number) { Type(field, std::to_string(number)); }
    /// Clicks a box unless it is ticked, or not ticked, already.
    void Tick(const std::string& box, bool ticked);
    /// Moves a slider with the keyboard until it stands at a value.
    void SlideTo(const std::string& slider, int value);

    std::string TextOf(const std::string& control);
    int NumberIn(const std::string& field) { return std::stoi(TextOf(field)); }
    int ValueOf(const std::string& slider) { return Find<QSlider>(slider).value(); }
    bool IsTicked(const std::string& box) { return Find<QAbstractButton>(box).isChecked(); }
    /// Whether a control is there for the user, however far its tab is from the front.
    bool IsShown(const std::string& control) { return !Find(control).isHidden(); }
    /// Whether a control has the ground of what was read back from a module.
    bool IsGreen(const std::string& control);

    /// So many ticks of the poll timer, while it is enabled.
    void Poll(int ticks = 1);

    /// Brings the tab that holds a control to the front.
    void ShowTabOf(QWidget& control);

    FakeClock clock;
    FakeTimer timer;
    FakeMessageBox messageBox;
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
