// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/drop_down_list.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zelvar::testing {
namespace {

class DropDownListTest : public ::testing::Test {
  protected:
    DropDownListTest() {
        QObject::connect(&list, &DropDownList::chosen, &list,
                         [this] { chosen.push_back(list.currentText().toStdString()); });
        for (const char* text : {"one", "two", "three"}) {
            list.Append(QString::fromUtf8(text), list.count() + 10);
        }
        list.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&list));
    }

    /// Opens the list and takes an entry with the keyboard.
    void EnterEntry(int row) {
        list.showPopup();
        list.view()->setCurrentIndex(list.model()->index(row, 0));
        QTest::keyClick(list.view(), Qt::Key_Return);
        ASSERT_FALSE(list.view()->isVisible());
    }

    DropDownList list;
    std::vector<std::string> chosen;
};

TEST_F(DropDownListTest, FillingAndClearingSelectsNothingAndReportsNothing) {
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.count(), 3);
    list.setCurrentIndex(1);
    chosen.clear();
    list.Append(QStringLiteral("four"));
    EXPECT_EQ(list.currentIndex(), 1);
    list.Clear();
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_TRUE(chosen.empty());
}

TEST_F(DropDownListTest, EveryChoiceReportsOnceAlsoOfTheSameEntry) {
    EnterEntry(2);
    EnterEntry(2);
    EnterEntry(0);
    EXPECT_EQ(chosen, (std::vector<std::string>{"three", "three", "one"}));
}

TEST_F(DropDownListTest, ASelectionFromCodeReportsLikeAChoice) {
    list.setCurrentIndex(2);
    EXPECT_EQ(chosen, std::vector<std::string>{"three"});
    EXPECT_EQ(list.SelectedData(-1), 12);
}

TEST_F(DropDownListTest, TheEntrySelectedFromCodeCanBeChosenByTheUser) {
    list.setCurrentIndex(2);
    EnterEntry(2);
    EXPECT_EQ(chosen, (std::vector<std::string>{"three", "three"}));
}

TEST_F(DropDownListTest, SelectingNothingReportsNothing) {
    list.setCurrentIndex(2);
    chosen.clear();
    list.setCurrentIndex(-1);
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(list.SelectedData(-7), -7);
}

TEST_F(DropDownListTest, ArrowKeysChoose) {
    list.setCurrentIndex(0);
    chosen.clear();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(chosen, (std::vector<std::string>{"two", "three", "two"}));
}

TEST_F(DropDownListTest, LeavingTheOpenListWithEscapeReportsNothing) {
    list.setCurrentIndex(0);
    chosen.clear();
    list.showPopup();
    QTest::keyClick(list.view(), Qt::Key_Down);
    QTest::keyClick(list.view(), Qt::Key_Escape);
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(list.currentIndex(), 0);
}

TEST_F(DropDownListTest, TheWheelDoesNotChoose) {
    list.setCurrentIndex(0);
    chosen.clear();
    list.setFocus();
    QWheelEvent down(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &down);
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(list.currentIndex(), 0);
}

}  // namespace
}  // namespace zelvar::testing
