// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/qt_timer.h"

namespace zelvar::testing {
namespace {

/// Does something with the open box as soon as there is one.
void WhenOpen(const std::function<void(QMessageBox&)>& act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            act(*box);
        }
    });
    timer->start(1);
}

struct BoxRow {
    const char* name;
    BoxIcon icon;
    BoxButtons buttons;
    QMessageBox::Icon shownIcon;
    QMessageBox::StandardButtons shownButtons;
    QMessageBox::StandardButton pressed;
    BoxAnswer answer;
};

class Boxes : public ::testing::TestWithParam<BoxRow> {};

TEST_P(Boxes, ShowTitleTextIconAndButtonsAndGiveTheAnswer) {
    const BoxRow& row = GetParam();
    QtMessageBox messageBox;
    bool seen = false;
    WhenOpen([&](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.windowTitle(), QStringLiteral("ZelvarConfig"));
        EXPECT_EQ(box.text(), QStringLiteral("First line\n<b>second</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), row.shownIcon);
        EXPECT_EQ(box.standardButtons(), row.shownButtons);
        EXPECT_TRUE(box.isModal());
        QTest::mouseClick(box.button(row.pressed), Qt::LeftButton);
    });
    EXPECT_EQ(messageBox.Ask("First line\r\n<b>second</b>", row.icon, row.buttons), row.answer);
    EXPECT_TRUE(seen);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Boxes,
    ::testing::Values(BoxRow{"Exclamation", BoxIcon::Exclamation, BoxButtons::Ok,
                             QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok, BoxAnswer::Ok},
                      BoxRow{"Critical", BoxIcon::Critical, BoxButtons::Ok, QMessageBox::Critical,
                             QMessageBox::Ok, QMessageBox::Ok, BoxAnswer::Ok},
                      BoxRow{"Plain", BoxIcon::Plain, BoxButtons::Ok, QMessageBox::NoIcon,
                             QMessageBox::Ok, QMessageBox::Ok, BoxAnswer::Ok},
                      BoxRow{"OkOfTwo", BoxIcon::Exclamation, BoxButtons::OkCancel,
                             QMessageBox::Warning, QMessageBox::Ok | QMessageBox::Cancel,
                             QMessageBox::Ok, BoxAnswer::Ok},
                      BoxRow{"CancelOfTwo", BoxIcon::Exclamation, BoxButtons::OkCancel,
                             QMessageBox::Warning, QMessageBox::Ok | QMessageBox::Cancel,
                             QMessageBox::Cancel, BoxAnswer::Cancel},
                      BoxRow{"Yes", BoxIcon::Exclamation, BoxButtons::YesNo, QMessageBox::Warning,
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, BoxAnswer::Yes},
                      BoxRow{"No", BoxIcon::Exclamation, BoxButtons::YesNo, QMessageBox::Warning,
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No, BoxAnswer::No}),
    [](const auto& row) { return std::string(row.param.name); });

struct CloseRow {
    const char* name;
    BoxButtons buttons;
    BoxAnswer answer;
};

class ClosedBoxes : public ::testing::TestWithParam<CloseRow> {};

TEST_P(ClosedBoxes, CountAsTheNegativeAnswerWhereThereIsOne) {
    QtMessageBox messageBox;
    WhenOpen([](QMessageBox& box) { box.done(-1); });
    EXPECT_EQ(messageBox.Ask("text", BoxIcon::Exclamation, GetParam().buttons), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(Rows, ClosedBoxes,
                         ::testing::Values(CloseRow{"Ok", BoxButtons::Ok, BoxAnswer::Ok},
                                           CloseRow{"OkCancel", BoxButtons::OkCancel,
                                                    BoxAnswer::Cancel},
                                           CloseRow{"YesNo", BoxButtons::YesNo, BoxAnswer::No}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(QtMessageBoxTest, NoTickRunsWhileABoxIsOpen) {
    QtMessageBox messageBox;
    QtTimer timer(1);
    int ticks = 0;
    timer.SetHandler([&] { ++ticks; });
    int turns = 0;
    QTimer other;
    QTimer::singleShot(0, &other, [&] { other.start(1); });
    QObject::connect(&other, &QTimer::timeout, &other, [&] {
        QWidget* box = QApplication::activeModalWidget();
        if (++turns >= 10 && box != nullptr) {
            box->close();
        }
    });
    timer.SetEnabled(true);
    messageBox.Tell("text", BoxIcon::Exclamation);
    EXPECT_GE(turns, 10);
    EXPECT_EQ(ticks, 0);
}

TEST(QtMessageBoxTest, TheHookRunsOncePerBoxWhileNoneIsOpen) {
    QtMessageBox messageBox;
    int calls = 0;
    messageBox.SetBeforeShow([&] {
        ++calls;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
    WhenOpen([](QMessageBox& box) { box.accept(); });
    messageBox.Tell("text", BoxIcon::Exclamation);
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace zelvar::testing
