// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QWidget>

#include "test/locomotives/drive_controls.h"

namespace zelvar {

/// The page "Analog": one locomotive that gets its power from the block.
class AnalogPage : public QWidget {
    Q_OBJECT

  public:
    /// @param desk must outlive the page, which puts its slider there
    explicit AnalogPage(DriveDesk& desk, QWidget* parent = nullptr);

    /// @param text a direction mark with a speed, such as ">>12"
    void ShowSpeed(const QString& text);

    /// Shows that nobody knows the speed of the block.
    void ShowUnknownSpeed();

    /// Forward, light off.
    void Rest();

  private:
    void LayOut();
    void ConnectControls();
    void AnalogSpeed_Change();
    void CheckAnalogDirection_Click();
    void CheckAnalogLight_Click();
    void CommandSetHFI_Click();
    void cmdEstopAnalog_Click();
    void SendSpeed();

    DriveDesk& desk_;
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
