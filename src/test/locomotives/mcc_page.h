// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QWidget>

#include <array>

#include "protocol/locomotives.h"
#include "test/locomotives/drive_controls.h"

namespace zelvar {

/// The page "MCC": one locomotive with an MCC decoder. Its commands carry no block.
class MccPage : public QWidget {
    Q_OBJECT

  public:
    /// @param desk must outlive the page
    explicit MccPage(DriveDesk& desk, QWidget* parent = nullptr);

  private:
    void BuildFunctions();
    QLayout* LayOutFunctions();
    void LayOut();
    void ConnectControls();
    void MCCspeed_Change();
    void CheckMCC30_Click();
    void cmdTestMCCfunction_Click();
    void cmdEstopMCC_Click();

    DriveDesk& desk_;
    SpeedSlider* MCCspeed_;
    QCheckBox* CheckMCC30_;
    QLabel* lblTestMCC_[3];
    SpinField* UpDownMCCdecoder_;
    SpinField* UpDownTestMCCacceleration_;
    QPushButton* cmdTestMCCfunction_;
    QPushButton* cmdEstopMCC_;
    std::array<QCheckBox*, kMccFunctionCount> chkTestMCCfunction_{};
};

}  // namespace zelvar
