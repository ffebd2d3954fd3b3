// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/window_fixture.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>

#include <cstdlib>

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

QWidget* FindWindow(const std::string& name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QString::fromStdString(name)) {
            return widget;
        }
    }
    return nullptr;
}

QPoint SpotOf(const QWidget& control) {
    const bool hasIndicator = qobject_cast<const QCheckBox*>(&control) != nullptr ||
                              qobject_cast<const QRadioButton*>(&control) != nullptr;
    return hasIndicator ? QPoint(8, control.height() / 2) : control.rect().center();
}

void Settle() {
    bool fired = false;
    QTimer::singleShot(0, [&fired] { fired = true; });
    ASSERT_TRUE(QTest::qWaitFor([&fired] { return fired; }));
}

WindowHands::WindowHands() = default;

WindowHands::~WindowHands() = default;

void WindowHands::ShowWindowOn(SerialPort& line) {
    ShowWindowOn(line, messageBox);
}

void WindowHands::ShowWindowOn(SerialPort& line, MessageBox& boxes) {
    const auto path = [](int number) { return QStringLiteral("/dev/port%1").arg(number); };
    const auto description = [path](int number) {
        return path(number) + QStringLiteral(" (Adapter)");
    };
    window = std::make_unique<MainWindow>(Platform{line, timer, clock, boxes, path, description});
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
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

void WindowHands::Click(const std::string& button) {
    auto& control = Find<QAbstractButton>(button);
    ShowTabOf(control);
    ASSERT_TRUE(control.isVisible()) << button << " is hidden";
    QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, SpotOf(control));
}

void WindowHands::DoubleClick(const std::string& control) {
    QTest::mouseDClick(&Find(control), Qt::LeftButton);
}

void WindowHands::Choose(const std::string& list, const std::string& entry) {
    auto& combo = Find<QComboBox>(list);
    const int index = combo.findText(QString::fromStdString(entry));
    ASSERT_GE(index, 0) << list << " has no entry '" << entry << "'";
    ShowTabOf(combo);
    ASSERT_TRUE(combo.isVisible()) << list << " is hidden";
    combo.showPopup();
    combo.view()->setCurrentIndex(combo.model()->index(index, combo.modelColumn()));
    QTest::keyClick(combo.view(), Qt::Key_Return);
}

void WindowHands::Type(const std::string& field, const std::string& text) {
    auto& edit = Find<QLineEdit>(field);
    ShowTabOf(edit);
    edit.setFocus();
    edit.selectAll();
    if (text.empty()) {
        QTest::keyClick(&edit, Qt::Key_Delete);
    } else {
        QTest::keyClicks(&edit, QString::fromStdString(text));
    }
}

void WindowHands::Tick(const std::string& box, bool ticked) {
    if (IsTicked(box) != ticked) {
        Click(box);
    }
    EXPECT_EQ(IsTicked(box), ticked) << box;
}

void WindowHands::SlideTo(const std::string& slider, int value) {
    auto& control = Find<QSlider>(slider);
    ShowTabOf(control);
    control.setFocus();
    while (control.value() != value) {
        const bool up = control.value() < value;
        const bool far = std::abs(control.value() - value) >= control.pageStep();
        QTest::keyClick(&control, far ? (up ? Qt::Key_PageUp : Qt::Key_PageDown)
                                      : (up ? Qt::Key_Right : Qt::Key_Left));
    }
    Settle();
}

std::string WindowHands::TextOf(const std::string& control) {
    return Find(control).property("text").toString().toStdString();
}

bool WindowHands::IsGreen(const std::string& control) {
    const QWidget& widget = Find(control);
    const bool isField = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    const QColor ground = widget.palette().color(isField ? QPalette::Base : QPalette::Window);
    return ground == QColor(0, 255, 0) && widget.autoFillBackground();
}

void WindowHands::Poll(int ticks) {
    for (int i = 0; i < ticks && timer.enabled && !NestedLoop::IsTurning(); ++i) {
        window->Timer1_Timer();
    }
}

void WindowFixture::OpenPort() {
    Choose("cboPort", "1");
    ASSERT_TRUE(port.IsOpen());
    port.history.clear();
}

}  // namespace zelvar::testing
