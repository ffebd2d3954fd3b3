// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "logs/log_window.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTextCursor>
#include <QVBoxLayout>

#include <algorithm>

#include "controls/arrange.h"
#include "controls/fixed_pitch_font.h"
#include "controls/naming.h"

namespace zelvar {

LogWindowKind MessageLogKind() {
    return {QStringLiteral("dlgMsgLog"),
            QStringLiteral("Message Log"),
            QStringLiteral("txtMsgLog"),
            QSize(Pixels(7095), Pixels(6855)),
            QStringLiteral(">> 4F 81 82 83 84 85 86 87 D8  << 4F 81 82 83 84 85 86 87 D8"),
            true};
}

LogWindowKind AlarmLogKind() {
    return {QStringLiteral("dlgAlarmLog"),
            QStringLiteral("ZelvarConfig Alarm Log"),
            QStringLiteral("txtAlarmLog"),
            QSize(Pixels(3375), Pixels(6855)),
            QStringLiteral("Overcurrent block 255 detected ............."),
            false};
}

LogWindow::LogWindow(const LogWindowKind& kind)
    : SecondaryWindow(kind.name, kind.caption), text_(new QPlainTextEdit(this)) {
    Named(text_, kind.textName, kind.caption);
    if (kind.fixedPitch) {
        text_->setFont(FixedPitchFont());
    }
    text_->setReadOnly(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setUndoRedoEnabled(false);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    text_->setMaximumBlockCount(kLogLines);

    auto* clear =
        Named(new QPushButton(QStringLiteral("Clear Log"), this), "cmdClear", "Clear the log");
    connect(clear, &QPushButton::clicked, this, &LogWindow::cmdClear_Click);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text_);
    layout->addWidget(clear, 0, Qt::AlignHCenter);

    const int frame =
        2 * (text_->frameWidth() + static_cast<int>(text_->document()->documentMargin()));
    const int lineWidth = text_->fontMetrics().horizontalAdvance(kind.widestLine) + frame +
                          text_->verticalScrollBar()->sizeHint().width();
    const QMargins margins = layout->contentsMargins();
    resize(std::max(kind.textSize.width(), lineWidth) + margins.left() + margins.right(),
           kind.textSize.height() + layout->spacing() + clear->sizeHint().height() + margins.top() +
               margins.bottom());
}

void LogWindow::Append(const QString& text) {
    QScrollBar* scrollBar = text_->verticalScrollBar();
    const bool atEnd = scrollBar->value() == scrollBar->maximum();
    const int firstInView = scrollBar->value();
    const int lines = text_->blockCount();
    const QTextCursor selection = text_->textCursor();
    const int anchor = selection.anchor();
    const int position = selection.position();
    // A cursor of its own leaves the user's selection alone.
    QTextCursor end(text_->document());
    end.movePosition(QTextCursor::End);
    const bool touchesEnd = selection.hasSelection() && selection.selectionEnd() == end.position();
    end.insertText(text);

    const int dropped =
        lines + static_cast<int>(text.count(QLatin1Char('\n'))) - text_->blockCount();
    if (touchesEnd && dropped == 0) {
        // It would grow with the text.
        QTextCursor same = selection;
        same.setPosition(anchor);
        same.setPosition(position, QTextCursor::KeepAnchor);
        text_->setTextCursor(same);
    }
    if (atEnd) {
        scrollBar->setValue(scrollBar->maximum());
    } else {
        // The lines that the user reads stay in place while those above them become fewer.
        scrollBar->setValue(std::max(0, firstInView - dropped));
    }
}

void LogWindow::cmdClear_Click() {
    text_->clear();
}

}  // namespace zelvar
