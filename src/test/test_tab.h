// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QWidget>

#include "controls/spin_field.h"
#include "link/services.h"
#include "link/system_status.h"
#include "protocol/reports.h"
#include "test/locomotives/analog_page.h"
#include "test/locomotives/dcc_page.h"
#include "test/locomotives/mcc_page.h"

namespace zelvar {

/// The "TEST" tab: the status line and the controls that drive the layout. This room is the tab's:
/// `locomotives` has its locomotive pages, `accessories` its groups of points, signals, outputs and
/// block links, `feedback` the feedback monitor that it opens.
class TestTab : public QWidget {
    Q_OBJECT

  public:
    TestTab(const Services& services, QWidget* parent = nullptr);

    void ShowSystemState(SystemState state);

    /// Shows the speed of the block that `txtTestBlock` names; a report of another block is
    /// dropped.
    void ShowBlockSpeed(const BlockSpeedReport& report);

  Q_SIGNALS:
    /// The user wants to see the feedback monitor.
    void feedbackMonitorWanted();

  private:
    QWidget* LocomotiveGroup();
    QLayout* AccessoryColumn();
    void ConnectControls();
    void SSTab2_Change(int page);
    void txtTestBlock_Change();
    void CommandTestClearBlock_Click();

    Services services_;
    QLabel* lblTestSystemStatus_;
    QPushButton* CommandTestFBM_;
    QLabel* lblTestBlock_;
    SpinField* UpDown_Block_;
    QPushButton* CommandTestClearBlock_;
    QTabWidget* SSTab2_;
    AnalogPage* analogPage_;
    DccPage* dccPage_;
    MccPage* mccPage_;
};

}  // namespace zelvar
