// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/port_bar.h"

#include <QHBoxLayout>

#include "controls/naming.h"

namespace zelvar {

namespace {

#ifdef _WIN32
constexpr char kNoPortAdvice[] =
    "No serial port can be opened. Plug in the adapter, close other programs that use it, then "
    "press Refresh.";
#else
constexpr char kNoPortAdvice[] =
    "No serial port can be opened. Plug in the adapter, close other programs that use it, make "
    "sure that you are a member of the group dialout, then press Refresh.";
#endif
constexpr char kPortAdvice[] = "The serial port that the central unit is connected to";

}  // namespace

void ServiceLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    QLabel::mouseDoubleClickEvent(event);
    Q_EMIT DblClick();
}

PortBar::PortBar(QWidget* parent)
    : QWidget(parent),
      lblCom(Named(new ServiceLabel(QStringLiteral("CommPort"), this), "lblCom", "CommPort")),
      cboPort(Named(new DropDownList(this), "cboPort", "Number of the serial port")),
      optBaud{Named(new QRadioButton(QStringLiteral("19k2"), this), "optBaud(0)", "19200 baud"),
              Named(new QRadioButton(QStringLiteral("38k4"), this), "optBaud(1)", "38400 baud")},
      Check_Stop(Named(new QCheckBox(QStringLiteral("Stop"), this), "Check_Stop",
                       "Ask the central unit to stop the layout")),
      cmdReset(Named(new QPushButton(QStringLiteral("Reset Fault"), this), "cmdReset",
                     "Reset the fault state of the central unit")),
      cmdRefresh(Named(new QPushButton(QStringLiteral("Refresh"), this), "cmdRefresh",
                       "Close the port and look for serial ports again")),
      cmdStatus(Named(new PressButton(QStringLiteral("Status"), this), "cmdStatus",
                      "Request the status of the system and its modules")) {
    cmdStatus->setToolTip(QStringLiteral("Shift+Click for Classic View"));
    Check_Stop->setChecked(true);
    optBaud[0]->setChecked(true);
    optBaud[0]->setVisible(false);
    optBaud[1]->setVisible(false);
    cboPort->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboPort->setMinimumContentsLength(4);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{lblCom, cboPort, optBaud[0], optBaud[1], cmdRefresh}) {
        layout->addWidget(widget);
    }
    layout->addStretch();
    for (QWidget* widget : std::initializer_list<QWidget*>{Check_Stop, cmdReset, cmdStatus}) {
        layout->addWidget(widget);
    }
}

void PortBar::ShowPorts(const std::vector<int>& ports) const {
    cboPort->Clear();
    for (const int number : ports) {
        cboPort->Append(QString::number(number), number);
    }
    cboPort->setToolTip(Text(ports.empty() ? kNoPortAdvice : kPortAdvice));
}

void PortBar::DescribePorts(const DescribePort& describe) const {
    for (int i = 0; i < cboPort->count(); ++i) {
        cboPort->setItemData(i, describe(cboPort->itemData(i).toInt()), Qt::ToolTipRole);
    }
}

}  // namespace zelvar
