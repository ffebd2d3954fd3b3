// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>

#include "controls/speed_slider.h"
#include "controls/spin_field.h"
#include "link/services.h"
#include "protocol/locomotives.h"

namespace zelvar {

/// The page "DCC": one locomotive with a DCC decoder.
class DccPage : public QWidget {
    Q_OBJECT

  public:
    /// @param block the number of the locomotive's block
    DccPage(const Services& services, const SpinField& block, QWidget* parent);

    /// Moves the slider to 0 and sends nothing.
    void StopSlider();

    /// Slider to 0, forward, light and all functions off; sends nothing.
    void Reset();

  Q_SIGNALS:
    /// An emergency stop is about to be sent.
    void emergencyStop();

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

    Services services_;
    const SpinField& block_;
    /// While the page itself moves its controls, these send nothing.
    bool inhibitSpeedEvents_ = false;
    SpeedSlider* DCCSpeed_;
    QCheckBox* CheckDCCDirection_;
    QCheckBox* CheckDCC126_;
    QCheckBox* CheckDCCForceLong_;
    QLabel* lblTestDCC_[2];
    SpinField* UpDownDecoder_;
    QPushButton* cmdEstopDCC_;
    /// `Command1`, one for each group of functions.
    std::array<QPushButton*, kDccFunctionGroups> sendButtons_{};
    /// `Check_Pattern`, one for each function.
    std::array<QCheckBox*, kDccFunctionCount> functionBoxes_{};
};

}  // namespace zelvar
