// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QSize>
#include <QString>

#include "controls/secondary_window.h"

namespace zelvar {

/// A log keeps this many lines; the oldest go first.
constexpr int kLogLines = 100000;

/// What distinguishes one log window from another.
struct LogWindowKind {
    QString name;
    QString caption;
    QString textName;
    /// The text field, in pixels; it grows to `widestLine` when that is wider.
    QSize textSize;
    QString widestLine;
    /// Columns line up.
    bool fixedPitch = false;
};

LogWindowKind MessageLogKind();
LogWindowKind AlarmLogKind();

/// A running text record that can be read, selected, copied and cleared.
class LogWindow : public SecondaryWindow {
    Q_OBJECT

  public:
    explicit LogWindow(const LogWindowKind& kind);

    /// Adds text behind the last. The view follows only while it shows the end.
    /// @param text lines end with "\r\n", and a line may come in several pieces
    void Append(const QString& text);

  private:
    void cmdClear_Click();

    QPlainTextEdit* text_;
};

}  // namespace zelvar
