// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "controls/speed_slider.h"
#include "controls/spin_field.h"
#include "link/services.h"

namespace zelvar {

/// The page "Analog": one locomotive that gets its power from the block.
class AnalogPage : public QWidget {
    Q_OBJECT

  public:
    /// @param block the number of the locomotive's block
    AnalogPage(const Services& services, const SpinField& block, QWidget* parent);

    /// @param text a direction mark with a speed, such as ">>12"
    void ShowSpeed(const QString& text);

    /// Shows the block's speed as unknown.
    void ShowUnknownSpeed();

    /// Moves the slider to 0 and sends nothing.
    void StopSlider();

    /// Slider to 0, speed unknown, forward, light off; sends nothing.
    void Reset();

  Q_SIGNALS:
    /// An emergency stop is about to be sent.
    void emergencyStop();

  private:
    void LayOut();
    void ConnectControls();
    void AnalogSpeed_Change();
    void CheckAnalogDirection_Click();
    void CheckAnalogLight_Click();
    void cmdEstopAnalog_Click();
    void SendSpeed();

    Services services_;
    const SpinField& block_;
    /// While the page itself moves its controls, these send nothing.
    bool inhibitSpeedEvents_ = false;
    SpeedSlider* AnalogSpeed_;
    QCheckBox* CheckAnalogDirection_;
    QCheckBox* CheckAnalogLight_;
    QLabel* lblTestAnalog_[3];
    SpinField* UpDownTestAcceleration_;
    SpinField* UpDownTestHFI_;
    QPushButton* CommandSetHFI_;
    QPushButton* cmdEstopAnalog_;
    QLabel* lblTestAnalogSpeed_;
};

}  // namespace zelvar
