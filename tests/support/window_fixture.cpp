// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/window_fixture.h"

#include <QAbstractItemView>
#include <QTabWidget>

namespace zelvar::testing {

std::string NamesBelow(const QWidget& root) {
    std::string names;
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_")) {
            names += ' ' + widget->objectName().toStdString();
        }
    }
    return names;
}

QWidget* FindWindow(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QString::fromUtf8(name)) {
            return widget;
        }
    }
    return nullptr;
}

WindowHands::WindowHands() = default;

WindowHands::~WindowHands() = default;

void WindowHands::ShowWindowOn(SerialPort& line) {
    const auto path = [](int number) { return QStringLiteral("/dev/port%1").arg(number); };
    const auto description = [path](int number) {
        return path(number) + QStringLiteral(" (Adapter)");
    };
    window = std::make_unique<MainWindow>(
        Platform{line, timer, clock, messageBox, gate, path, description});
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    window->BuildTabs();
}

void WindowHands::ShowTabOf(QWidget& control) {
    for (QWidget* widget = &control; widget->parentWidget() != nullptr;
         widget = widget->parentWidget()) {
        QWidget* stack = widget->parentWidget();
        auto* tabs = stack->parentWidget() == nullptr
                         ? nullptr
                         : qobject_cast<QTabWidget*>(stack->parentWidget());
        if (tabs != nullptr && tabs->indexOf(widget) >= 0) {
            tabs->setCurrentWidget(widget);
        }
    }
}

void WindowHands::Click(const char* name) {
    auto& button = Find<QAbstractButton>(name);
    ShowTabOf(button);
    ASSERT_TRUE(button.isVisible()) << name << " is hidden";
    // A check box or option reacts on its indicator and caption, not on the room behind them.
    const bool isPushButton = qobject_cast<QPushButton*>(&button) != nullptr;
    const QPoint place = isPushButton ? button.rect().center() : QPoint(8, button.height() / 2);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, place);
}

void WindowHands::Choose(const char* list, const QString& entry) {
    auto& combo = Find<QComboBox>(list);
    const int index = combo.findText(entry);
    ASSERT_GE(index, 0) << list << " has no entry '" << entry.toStdString() << "'";
    ShowTabOf(combo);
    ASSERT_TRUE(combo.isVisible()) << list << " is hidden";
    combo.showPopup();
    combo.view()->setCurrentIndex(combo.model()->index(index, combo.modelColumn()));
    QTest::keyClick(combo.view(), Qt::Key_Return);
}

void WindowHands::Type(const char* field, const QString& text) {
    auto& edit = Find<QLineEdit>(field);
    ShowTabOf(edit);
    edit.setFocus();
    edit.selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&edit, Qt::Key_Delete);
    } else {
        QTest::keyClicks(&edit, text);
    }
}

QString WindowHands::TextOf(const char* name) {
    auto& control = Find<QWidget>(name);
    return control.property("text").toString();
}

void WindowFixture::OpenPort() {
    Choose("cboPort", QStringLiteral("1"));
    ASSERT_TRUE(port.IsOpen());
    port.history.clear();
}

void WindowHands::Tick() {
    if (timer.enabled && !gate.IsBusy()) {
        const HandlerGate::Scope scope(gate);
        window->Timer1_Timer();
    }
}

}  // namespace zelvar::testing
