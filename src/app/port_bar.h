// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

#include "controls/drop_down_list.h"
#include "controls/press_button.h"

namespace zelvar {

/// A caption on which a double click is a service gesture.
class ServiceLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

  Q_SIGNALS:
    void doubleClicked();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

/// The controls of the main window that lie outside the tabs.
class PortBar : public QWidget {
    Q_OBJECT

  public:
    /// A text about the device of a port number, for the user.
    using DescribePort = std::function<QString(int portNumber)>;

    explicit PortBar(QWidget* parent = nullptr);

    /// Fills the list again, without a selection.
    void ShowPorts(const std::vector<int>& ports);

    /// Gives every entry its tooltip.
    void DescribePorts(const DescribePort& describe);

    /// The number in the list, 0 when none is chosen.
    int PortNumber() const;

    /// The caption of the chosen rate.
    QString Rate() const;
    /// Makes the rates visible.
    void ShowRates();

    bool IsStopTicked() const { return Check_Stop_->isChecked(); }

  Q_SIGNALS:
    void portChosen();
    /// @param index of the rate, which may be chosen already
    void rateClicked(int index);
    void refreshClicked();
    void resetClicked();
    /// @param shiftLeft whether it was the left button with Shift alone
    void statusPressed(bool shiftLeft);
    /// The double click on the caption of the list.
    void serviceRequested();

  private:
    void LayOut();
    void ConnectControls();

    ServiceLabel* lblCom_;
    DropDownList* cboPort_;
    std::array<QRadioButton*, 2> optBaud_;
    QCheckBox* Check_Stop_;
    QPushButton* cmdReset_;
    QPushButton* cmdRefresh_;
    PressButton* cmdStatus_;
};

}  // namespace zelvar
