// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/port_bar.h"

#include <QHBoxLayout>

#include "controls/naming.h"
#include "controls/number_text.h"
#include "platform/serial_port.h"

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
    Q_EMIT doubleClicked();
}

PortBar::PortBar(QWidget* parent)
    : QWidget(parent),
      lblCom_(Named(new ServiceLabel(QStringLiteral("CommPort"), this), "lblCom", "CommPort")),
      cboPort_(Named(new DropDownList(this), "cboPort", "Number of the serial port")),
      optBaud_{Named(new QRadioButton(QStringLiteral("19k2"), this), "optBaud(0)", "19200 baud"),
               Named(new QRadioButton(QStringLiteral("38k4"), this), "optBaud(1)", "38400 baud")},
      Check_Stop_(Named(new QCheckBox(QStringLiteral("Stop"), this), "Check_Stop",
                        "Ask the central unit to stop the layout")),
      cmdReset_(Named(new QPushButton(QStringLiteral("Reset Fault"), this), "cmdReset",
                      "Reset the fault state of the central unit")),
      cmdRefresh_(Named(new QPushButton(QStringLiteral("Refresh"), this), "cmdRefresh",
                        "Close the port and look for serial ports again")),
      cmdStatus_(Named(new PressButton(QStringLiteral("Status"), this), "cmdStatus",
                       "Request the status of the system and its modules")) {
    cmdStatus_->setToolTip(QStringLiteral("Shift+Click for Classic View"));
    Check_Stop_->setChecked(true);
    optBaud_[0]->setChecked(true);
    optBaud_[0]->setVisible(false);
    optBaud_[1]->setVisible(false);
    cboPort_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboPort_->setMinimumContentsLength(4);
    LayOut();
    ConnectControls();
}

void PortBar::LayOut() {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : std::initializer_list<QWidget*>{lblCom_, cboPort_, optBaud_[0],
                                                           optBaud_[1], cmdRefresh_}) {
        layout->addWidget(widget);
    }
    layout->addStretch();
    for (QWidget* widget : std::initializer_list<QWidget*>{Check_Stop_, cmdReset_, cmdStatus_}) {
        layout->addWidget(widget);
    }
}

void PortBar::ConnectControls() {
    connect(lblCom_, &ServiceLabel::doubleClicked, this, &PortBar::serviceRequested);
    connect(cboPort_, &DropDownList::chosen, this, &PortBar::portChosen);
    connect(cmdReset_, &QPushButton::clicked, this, &PortBar::resetClicked);
    connect(cmdRefresh_, &QPushButton::clicked, this, &PortBar::refreshClicked);
    connect(cmdStatus_, &PressButton::mouseDown, this, &PortBar::statusPressed);
    for (int index : {0, 1}) {
        // Choosing the chosen rate again counts, too, so it is the click that matters.
        connect(optBaud_.at(index), &QRadioButton::clicked, this,
                [this, index] { Q_EMIT rateClicked(index); });
    }
}

int PortBar::PortNumber() const {
    return ValToInt(cboPort_->currentText().toStdString(), 0, kLastPortNumber);
}

QString PortBar::Rate() const {
    return optBaud_[1]->isChecked() ? optBaud_[1]->text() : optBaud_[0]->text();
}

void PortBar::ShowRates() {
    for (QRadioButton* rate : optBaud_) {
        rate->setVisible(true);
    }
}

void PortBar::ShowPorts(const std::vector<int>& ports) {
    cboPort_->Clear();
    for (const int number : ports) {
        cboPort_->Append(QString::number(number), number);
    }
    cboPort_->setToolTip(ToQString(ports.empty() ? kNoPortAdvice : kPortAdvice));
}

void PortBar::DescribePorts(const DescribePort& describe) {
    for (int i = 0; i < cboPort_->count(); ++i) {
        cboPort_->setItemData(i, describe(cboPort_->itemData(i).toInt()), Qt::ToolTipRole);
    }
}

}  // namespace zelvar
