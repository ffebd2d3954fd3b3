// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QWidget>

#include <array>

#include "protocol/locomotives.h"
#include "test/locomotives/drive_controls.h"

namespace zelvar {

/// The page "DCC": one locomotive with a DCC decoder.
class DccPage : public QWidget {
    Q_OBJECT

  public:
    /// @param desk must outlive the page, which puts its slider there
    explicit DccPage(DriveDesk& desk, QWidget* parent = nullptr);

    /// Forward.
    void RestDirection();

    /// Clears the light and all functions; they go out with the next press of their buttons.
    void ClearFunctions();

  private:
    void BuildFunctions();
    QLayout* LayOutFunctions();
    void LayOut();
    void ConnectControls();
    void DCCSpeed_Change();
    void CheckDCCDirection_Click();
    void CheckDCC126_Click();
    void Command1_Click(int index);
    void cmdEstopDCC_Click();
    DccAddress Address() const;
    DccSteps Steps() const;

    DriveDesk& desk_;
    SpeedSlider* DCCSpeed_;
    QCheckBox* CheckDCCDirection_;
    QCheckBox* CheckDCC126_;
    QCheckBox* CheckDCCForceLong_;
    QLabel* lblTestDCC_[2];
    SpinField* UpDownDecoder_;
    QPushButton* cmdEstopDCC_;
    std::array<QPushButton*, static_cast<std::size_t>(kDccFunctionGroups)> Command1_{};
    std::array<QCheckBox*, kDccFunctionCount> Check_Pattern_{};
};

}  // namespace zelvar
