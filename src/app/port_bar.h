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
    void DblClick();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

/// The controls of the main window that lie outside the tabs.
class PortBar : public QWidget {
    Q_OBJECT

  public:
    /// Says something about the device behind a port number, for the user.
    using DescribePort = std::function<QString(int portNumber)>;

    explicit PortBar(QWidget* parent = nullptr);

    /// Fills the list anew, without a selection.
    void ShowPorts(const std::vector<int>& ports) const;

    /// Gives every entry its tooltip.
    void DescribePorts(const DescribePort& describe) const;

    ServiceLabel* lblCom;
    DropDownList* cboPort;
    std::array<QRadioButton*, 2> optBaud;
    QCheckBox* Check_Stop;
    QPushButton* cmdReset;
    QPushButton* cmdRefresh;
    PressButton* cmdStatus;
};

}  // namespace zelvar
