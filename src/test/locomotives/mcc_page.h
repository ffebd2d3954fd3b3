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

/// The page "MCC": one locomotive with an MCC decoder. Its commands carry no block.
class MccPage : public QWidget {
    Q_OBJECT

  public:
    MccPage(const Services& services, QWidget* parent);

  private:
    void BuildFunctions();
    QLayout* LayOutFunctions();
    void LayOut();
    void ConnectControls();
    void MCCspeed_Change();
    void CheckMCC30_Click();
    void cmdEstopMCC_Click();
    Command Functions() const;

    Services services_;
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
