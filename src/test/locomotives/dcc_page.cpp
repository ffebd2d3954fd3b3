// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/dcc_page.h"

#include <QGridLayout>
#include <QScopedValueRollback>

#include "controls/arrange.h"
#include "controls/naming.h"
#include "test/locomotives/drive_controls.h"

namespace zelvar {

namespace {

constexpr int kFirstDecoder = 1;
constexpr int kLastDecoder = 10239;

/// A button and the row of boxes that it sends.
struct GroupRow {
    /// Padded to equal width.
    const char* caption;
    std::size_t first;
    std::size_t last;
};

constexpr std::array<GroupRow, kDccFunctionGroups> kGroupRows{{
    {"Set F1..F4 + L", 0, 4},
    {"Set F5..F8    ", 5, 8},
    {"Set F9..F12   ", 9, 12},
    {"Set F13..F20  ", 13, 20},
    {"Set F21..F28  ", 21, 28},
}};
/// The largest groups have eight functions.
constexpr int kFunctionColumns = 8;

QLabel* Caption(int index, const char* caption, QWidget* parent) {
    return CaptionLabel(IndexedName("lblTestDCC", index), ToQString(caption), parent);
}

}  // namespace

DccPage::DccPage(const Services& services, const SpinField& block, QWidget* parent)
    : QWidget(parent),
      services_(services),
      block_(block),
      DCCSpeed_(Named(new SpeedSlider(kDccTopSpeed28, this), "DCCSpeed", "DCC speed")),
      CheckDCCDirection_(Named(new QCheckBox(QStringLiteral("Forward"), this), "CheckDCCDirection",
                               "DCC locomotive runs forward")),
      CheckDCC126_(Named(new QCheckBox(QStringLiteral("126 Steps"), this), "CheckDCC126",
                         "Drive with 126 speed steps")),
      CheckDCCForceLong_(Named(new QCheckBox(QStringLiteral("DCC Long Address"), this),
                               "CheckDCCForceLong", "Always use the long DCC address")),
      lblTestDCC_{Caption(0, "Decoder", this), Caption(1, "DCC Speed", this)},
      UpDownDecoder_(ClampedField(QStringLiteral("UpDownDecoder"), QStringLiteral("Text_Decoder"),
                                  QStringLiteral("DCC decoder"), kFirstDecoder, kLastDecoder, this,
                                  lblTestDCC_[0])),
      cmdEstopDCC_(EstopButton("cmdEstopDCC", "Emergency stop of the DCC locomotive", this)) {
    BuildFunctions();
    Reset();
    LayOut();
    ConnectControls();
}

void DccPage::BuildFunctions() {
    int number = 0;
    for (QCheckBox*& box : functionBoxes_) {
        const bool isLight = number == 0;
        box = Named(
            new QCheckBox(isLight ? QStringLiteral("L") : QStringLiteral("F%1").arg(number), this),
            IndexedName("Check_Pattern", number),
            isLight ? QStringLiteral("DCC light") : QStringLiteral("DCC function %1").arg(number));
        ++number;
    }
    for (std::size_t i = 0; i < kGroupRows.size(); ++i) {
        const QString caption = ToQString(kGroupRows[i].caption);
        sendButtons_[i] = Named(new QPushButton(caption, this), IndexedName("Command1", i),
                                QStringLiteral("DCC: ") + caption.trimmed());
    }
}

QLayout* DccPage::LayOutFunctions() {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (std::size_t i = 0; i < kGroupRows.size(); ++i) {
        const int row = static_cast<int>(i);
        const GroupRow& group = kGroupRows[i];
        for (std::size_t function = group.first; function <= group.last; ++function) {
            grid->addWidget(functionBoxes_[function], row,
                            static_cast<int>(function - group.first));
        }
        grid->addWidget(sendButtons_[i], row, kFunctionColumns);
    }
    for (int column = 0; column < kFunctionColumns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    return grid;
}

void DccPage::LayOut() {
    lblTestDCC_[1]->setBuddy(DCCSpeed_);
    auto* layout = new QGridLayout(this);
    layout->addWidget(lblTestDCC_[0], 0, 0);
    layout->addLayout(Row({UpDownDecoder_, CheckDCCForceLong_}), 0, 1, 1, 2);
    layout->addWidget(lblTestDCC_[1], 1, 0);
    layout->addWidget(DCCSpeed_, 1, 1);
    layout->addWidget(SliderReadOut(QStringLiteral("lblDCCSpeedValue"), DCCSpeed_, kDccTopSpeed126),
                      1, 2);
    layout->addLayout(Row({CheckDCCDirection_, CheckDCC126_}), 2, 1, 1, 2);
    layout->addLayout(LayOutFunctions(), 3, 0, 1, 3);
    layout->setRowStretch(4, 1);
    layout->addWidget(cmdEstopDCC_, 5, 0, 1, 3);
    layout->setColumnStretch(1, 1);
    for (std::size_t i = 1; i < functionBoxes_.size(); ++i) {
        SetTabOrder({functionBoxes_[i - 1], functionBoxes_[i]});
    }
    SetTabOrder({UpDownDecoder_, CheckDCCForceLong_, DCCSpeed_, CheckDCCDirection_, CheckDCC126_,
                 functionBoxes_[0]});
    for (std::size_t i = 0; i < kGroupRows.size(); ++i) {
        SetTabOrder({functionBoxes_[kGroupRows[i].last], sendButtons_[i],
                     i + 1 < kGroupRows.size()
                         ? static_cast<QWidget*>(functionBoxes_[kGroupRows[i + 1].first])
                         : cmdEstopDCC_});
    }
}

void DccPage::ConnectControls() {
    connect(DCCSpeed_, &SpeedSlider::valueReported, this, &DccPage::DCCSpeed_Change);
    connect(CheckDCCDirection_, &QCheckBox::toggled, this, &DccPage::CheckDCCDirection_Click);
    connect(CheckDCC126_, &QCheckBox::toggled, this, &DccPage::CheckDCC126_Click);
    connect(cmdEstopDCC_, &QPushButton::clicked, this, &DccPage::cmdEstopDCC_Click);
    for (std::size_t i = 0; i < sendButtons_.size(); ++i) {
        connect(sendButtons_[i], &QPushButton::clicked, this,
                [this, i] { Command1_Click(static_cast<int>(i)); });
    }
}

void DccPage::StopSlider() {
    const QScopedValueRollback<bool> inhibit(inhibitSpeedEvents_, true);
    DCCSpeed_->putValue(0);
}

void DccPage::Reset() {
    StopSlider();
    const QScopedValueRollback<bool> inhibit(inhibitSpeedEvents_, true);
    CheckDCCDirection_->setChecked(true);
    for (QCheckBox* box : functionBoxes_) {
        box->setChecked(false);
    }
}

DccAddress DccPage::Address() const {
    return {UpDownDecoder_->value(), CheckDCCForceLong_->isChecked()};
}

DccSteps DccPage::Steps() const {
    return CheckDCC126_->isChecked() ? DccSteps::k126 : DccSteps::k28;
}

void DccPage::DCCSpeed_Change() {
    if (!inhibitSpeedEvents_ && services_.link.CheckPort()) {
        services_.link.Transact(DccSpeed(Steps(), block_.value(), DCCSpeed_->value(),
                                         CheckDCCDirection_->isChecked(), Address()));
    }
}

void DccPage::CheckDCCDirection_Click() {
    DCCSpeed_Change();
}

void DccPage::CheckDCC126_Click() {
    // A slider that was not at 0 sends its 0, already in the new step mode.
    DCCSpeed_->putValue(0);
    DCCSpeed_->setMaximum(CheckDCC126_->isChecked() ? kDccTopSpeed126 : kDccTopSpeed28);
}

void DccPage::cmdEstopDCC_Click() {
    if (!services_.link.CheckPort()) {
        return;
    }
    StopSlider();
    Q_EMIT emergencyStop();
    services_.link.Transact(
        DccEstop(Steps(), block_.value(), CheckDCCDirection_->isChecked(), Address()));
}

void DccPage::Command1_Click(int index) {
    if (!services_.link.CheckPort()) {
        return;
    }
    DccFunctionSet functions;
    for (std::size_t i = 0; i < functionBoxes_.size(); ++i) {
        functions[i] = functionBoxes_[i]->isChecked();
    }
    if (const auto command = DccFunctions(index, block_.value(), functions, Address())) {
        services_.link.Transact(*command);
    }
}

}  // namespace zelvar
