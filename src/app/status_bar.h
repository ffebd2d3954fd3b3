// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include "link/system_status.h"
#include "platform/progress.h"

namespace zelvar {

/// The bottom line of the main window: the system status, the open device and how far long work
/// has come.
class StatusBar : public QStatusBar, public Progress {
    Q_OBJECT

  public:
    explicit StatusBar(QWidget* parent = nullptr);

    void ShowSystemState(SystemState state);
    void ShowDevice(const QString& text);

    void Begin(const std::string& caption, int steps) override;
    void Step() override;
    void End() override;
    void OfferCancel() override;
    bool IsCancelled() override;

    /// Lets Cancel, if it is offered, react to input that came while the program was waiting.
    void PumpCancel();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void WithdrawCancel();
    bool IsForCancel(QObject* watched, QEvent* event);

    QLabel* lblBarStatus_;
    QLabel* lblBarDevice_;
    QLabel* lblBarProgress_;
    QProgressBar* prgBar_;
    QPushButton* cmdCancel_;
    QPointer<QWidget> focusBefore_;
    bool offered_ = false;
    bool cancelled_ = false;
};

}  // namespace zelvar
