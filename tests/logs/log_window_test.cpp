// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "logs/log_window.h"

#include <QClipboard>
#include <QFontInfo>
#include <QScrollBar>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <string>

#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

class LogWindowTest : public ::testing::Test {
  protected:
    static QString Line(int number) { return QStringLiteral("line %1\r\n").arg(number); }
    void AppendLines(int first, int count) {
        for (int i = first; i < first + count; ++i) {
            log.Append(Line(i));
        }
    }
    std::string Shown() { return text.toPlainText().toStdString(); }
    /// The first line in view.
    std::string TopLine() {
        return text.cursorForPosition(QPoint(5, 5)).block().text().toStdString();
    }
    void Show() {
        log.BringIntoView(true);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&log));
    }

    LogWindow log{MessageLogKind()};
    QPlainTextEdit& text = FindBelow<QPlainTextEdit>(log, "txtMsgLog");
    QScrollBar& bar = *text.verticalScrollBar();
};

TEST_F(LogWindowTest, TheMessageLogIsLaidOutForItsColumns) {
    EXPECT_EQ(log.objectName(), QStringLiteral("dlgMsgLog"));
    EXPECT_EQ(log.windowTitle(), QStringLiteral("Message Log"));
    EXPECT_EQ(text.font().family(), QStringLiteral("Lucida Console"));
    EXPECT_EQ(text.font().pointSize(), 9);
    const QFontMetrics metrics(text.font());
    EXPECT_EQ(metrics.horizontalAdvance(QStringLiteral("   ")),
              metrics.horizontalAdvance(QStringLiteral(" D8")))
        << QFontInfo(text.font()).family().toStdString();
    EXPECT_EQ(text.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(FindBelow<QPushButton>(log, "cmdClear").text(), QStringLiteral("Clear Log"));
    Show();
    // 7095 x 6855 twips; wider where the font asks for it, so that no line is cut.
    EXPECT_GE(text.width(), 473);
    EXPECT_EQ(text.height(), 457);
    log.Append(QStringLiteral(">> 4F 81 82 83 84 85 86 87 D8  << 4F 81 82 83 84 85 86 87 D8\r\n"));
    EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0);
}

TEST_F(LogWindowTest, TheAlarmLogIsNarrower) {
    LogWindow alarms(AlarmLogKind());
    auto& field = FindBelow<QPlainTextEdit>(alarms, "txtAlarmLog");
    EXPECT_EQ(alarms.objectName(), QStringLiteral("dlgAlarmLog"));
    EXPECT_EQ(alarms.windowTitle(), QStringLiteral("ZelvarConfig Alarm Log"));
    EXPECT_EQ(FindBelow<QPushButton>(alarms, "cmdClear").text(), QStringLiteral("Clear Log"));
    alarms.BringIntoView(true);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&alarms));
    EXPECT_GE(field.width(), 225);
    EXPECT_EQ(field.height(), 457);
    alarms.Append(QStringLiteral("Overcurrent block 255 detected .............\r\n"));
    EXPECT_EQ(field.horizontalScrollBar()->maximum(), 0);
}

TEST_F(LogWindowTest, TextGoesToTheEndAlsoInPieces) {
    log.Append(QStringLiteral(">> 0A 81 80 F5"));
    log.Append(QStringLiteral("               "));
    log.Append(QStringLiteral("  << 08 F8\r\n"));
    log.Append(QStringLiteral("\r\n"));
    log.Append(QStringLiteral("next"));
    EXPECT_EQ(Shown(), ">> 0A 81 80 F5                 << 08 F8\n\nnext");
}

TEST_F(LogWindowTest, WhatIsWrittenWhileItIsHiddenIsThereWhenItIsShown) {
    log.Append(Line(1));
    EXPECT_FALSE(log.isVisible());
    Show();
    EXPECT_EQ(Shown(), "line 1\n");
}

TEST_F(LogWindowTest, ClearEmptiesItAndWritingGoesOn) {
    AppendLines(1, 3);
    Show();
    QTest::mouseClick(&FindBelow<QPushButton>(log, "cmdClear"), Qt::LeftButton);
    EXPECT_EQ(Shown(), "");
    log.Append(Line(4));
    EXPECT_EQ(Shown(), "line 4\n");
}

TEST_F(LogWindowTest, TheUserCannotWriteInIt) {
    log.Append(Line(1));
    Show();
    text.setFocus();
    QTest::keyClicks(&text, QStringLiteral("x"));
    QTest::keyClick(&text, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "line 1\n");
}

TEST_F(LogWindowTest, ItKeepsAHundredThousandLinesAndDropsTheOldest) {
    AppendLines(1, 100050);
    EXPECT_EQ(text.document()->blockCount(), 100000);
    // The last of them is the empty one that the next text goes to.
    EXPECT_EQ(text.document()->firstBlock().text(), QStringLiteral("line 52"));
    EXPECT_EQ(text.document()->lastBlock().previous().text(), QStringLiteral("line 100050"));
}

TEST_F(LogWindowTest, TheViewFollowsTheEnd) {
    Show();
    AppendLines(1, 500);
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_GT(bar.maximum(), 400);
}

TEST_F(LogWindowTest, AUserWhoScrolledUpIsNotPulledDown) {
    AppendLines(1, 500);
    Show();
    bar.setValue(100);
    const std::string top = TopLine();
    AppendLines(501, 200);
    EXPECT_EQ(bar.value(), 100);
    EXPECT_EQ(TopLine(), top);
}

TEST_F(LogWindowTest, WhatAUserWhoScrolledUpReadsStaysInPlaceWhenOldLinesGo) {
    AppendLines(1, 100000);
    Show();
    bar.setValue(50000);
    const std::string top = TopLine();
    AppendLines(100001, 300);
    EXPECT_EQ(TopLine(), top);
}

TEST_F(LogWindowTest, BackAtTheEndTheViewFollowsAgain) {
    AppendLines(1, 500);
    Show();
    bar.setValue(100);
    bar.setValue(bar.maximum());
    AppendLines(501, 10);
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(LogWindowTest, ASelectionStaysAndCanBeCopied) {
    AppendLines(1, 50);
    Show();
    text.setFocus();
    QTextCursor cursor(text.document()->findBlockByNumber(3));
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    text.setTextCursor(cursor);
    AppendLines(51, 50);
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "line 4\n");
}

TEST_F(LogWindowTest, ASelectionUpToTheEndDoesNotGrow) {
    AppendLines(1, 2);
    Show();
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
    AppendLines(3, 2);
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "line 1\nline 2\n");
}

TEST_F(LogWindowTest, ASelectionUpToTheEndDoesNotPullTheViewDown) {
    AppendLines(1, 500);
    Show();
    text.selectAll();
    bar.setValue(100);
    AppendLines(501, 10);
    EXPECT_EQ(bar.value(), 100);
    EXPECT_EQ(text.textCursor().selectionEnd() - text.textCursor().selectionStart(),
              text.document()->findBlockByNumber(500).position());
}

TEST_F(LogWindowTest, TextCanBeSelectedWithTheMouse) {
    AppendLines(1, 2);
    Show();
    QTest::mouseDClick(text.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    EXPECT_EQ(text.textCursor().selectedText(), QStringLiteral("line"));
}

TEST_F(LogWindowTest, EscapeClosesIt) {
    Show();
    int closed = 0;
    QObject::connect(&log, &SecondaryWindow::closed, &log, [&] { ++closed; });
    QTest::keyClick(&log, Qt::Key_Escape);
    EXPECT_FALSE(log.isVisible());
    EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace zelvar::testing
