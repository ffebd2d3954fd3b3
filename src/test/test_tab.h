// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "link/reports.h"
#include "link/services.h"
#include "link/system_status.h"

namespace zelvar {

/// The "TEST" tab: the status line and the controls that drive the layout.
class TestTab : public QWidget {
    Q_OBJECT

  public:
    TestTab(const Services& services, QWidget* parent = nullptr);

    void ShowSystemState(SystemState state);

    /// Shows the speed of the block that `txtTestBlock` names; others are dropped silently.
    void ShowBlockSpeed(const BlockSpeedReport& report);

  private:
    QLabel* lblTestSystemStatus_;
    QLineEdit* txtTestBlock_;
    QLabel* lblTestAnalogSpeed_;
};

}  // namespace zelvar
