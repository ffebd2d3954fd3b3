// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/dcc_page.h"

#include <QGridLayout>

#include "controls/naming.h"

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

constexpr std::array<GroupRow, static_cast<std::size_t>(kDccFunctionGroups)> kGroupRows{{
    {"Set F1..F4 + L", 0, 4},
    {"Set F5..F8    ", 5, 8},
    {"Set F9..F12   ", 9, 12},
    {"Set F13..F20  ", 13, 20},
    {"Set F21..F28  ", 21, 28},
}};
/// The longest groups have eight functions.
constexpr int kFunctionColumns = 8;

QLabel* Caption(int index, const char* caption, QWidget* parent) {
    return CaptionLabel(IndexedName("lblTestDCC", index), Text(caption), parent);
}

}  // namespace

DccPage::DccPage(DriveDesk& desk, QWidget* parent)
    : QWidget(parent),
      desk_(desk),
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
    desk_.dccSpeed = DCCSpeed_;
    RestDirection();
    BuildFunctions();
    LayOut();
    ConnectControls();
}

void DccPage::BuildFunctions() {
    for (std::size_t i = 0; i < kDccFunctionCount; ++i) {
        const int number = static_cast<int>(i);
        const QString caption =
            number == 0 ? QStringLiteral("L") : QStringLiteral("F%1").arg(number);
        Check_Pattern_[i] =
            Named(new QCheckBox(caption, this), IndexedName("Check_Pattern", number),
                  number == 0 ? QStringLiteral("DCC light")
                              : QStringLiteral("DCC function %1").arg(number));
    }
    for (std::size_t i = 0; i < kGroupRows.size(); ++i) {
        const QString caption = Text(kGroupRows[i].caption);
        Command1_[i] =
            Named(new QPushButton(caption, this), IndexedName("Command1", static_cast<int>(i)),
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
            grid->addWidget(Check_Pattern_[function], row,
                            static_cast<int>(function - group.first));
        }
        grid->addWidget(Command1_[i], row, kFunctionColumns);
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
    for (std::size_t i = 1; i < Check_Pattern_.size(); ++i) {
        SetTabOrder({Check_Pattern_[i - 1], Check_Pattern_[i]});
    }
    SetTabOrder({UpDownDecoder_, CheckDCCForceLong_, DCCSpeed_, CheckDCCDirection_, CheckDCC126_,
                 Check_Pattern_[0]});
    for (std::size_t i = 0; i < kGroupRows.size(); ++i) {
        SetTabOrder({Check_Pattern_[kGroupRows[i].last], Command1_[i],
                     i + 1 < kGroupRows.size()
                         ? static_cast<QWidget*>(Check_Pattern_[kGroupRows[i + 1].first])
                         : cmdEstopDCC_});
    }
}

void DccPage::ConnectControls() {
    connect(DCCSpeed_, &SpeedSlider::Change, this, &DccPage::DCCSpeed_Change);
    connect(CheckDCCDirection_, &QCheckBox::toggled, this, &DccPage::CheckDCCDirection_Click);
    connect(CheckDCC126_, &QCheckBox::toggled, this, &DccPage::CheckDCC126_Click);
    connect(cmdEstopDCC_, &QPushButton::clicked, this, &DccPage::cmdEstopDCC_Click);
    for (std::size_t i = 0; i < Command1_.size(); ++i) {
        connect(Command1_[i], &QPushButton::clicked, this,
                [this, i] { Command1_Click(static_cast<int>(i)); });
    }
}

void DccPage::RestDirection() {
    CheckDCCDirection_->setChecked(true);
}

void DccPage::ClearFunctions() {
    for (QCheckBox* box : Check_Pattern_) {
        box->setChecked(false);
    }
}

DccAddress DccPage::Address() const {
    return {UpDownDecoder_->Value(), CheckDCCForceLong_->isChecked()};
}

DccSteps DccPage::Steps() const {
    return CheckDCC126_->isChecked() ? DccSteps::k126 : DccSteps::k28;
}

void DccPage::DCCSpeed_Change() {
    if (desk_.services.link.CheckPort() && !desk_.inhibitSpeedEvents) {
        desk_.services.link.Transact(DccSpeed(Steps(), desk_.Block(), DCCSpeed_->value(),
                                              CheckDCCDirection_->isChecked(), Address()));
    }
}

void DccPage::CheckDCCDirection_Click() {
    DCCSpeed_Change();
}

void DccPage::CheckDCC126_Click() {
    // A slider that stood elsewhere sends its 0, already in the new step mode.
    DCCSpeed_->Put(0);
    DCCSpeed_->setMaximum(CheckDCC126_->isChecked() ? kDccTopSpeed126 : kDccTopSpeed28);
}

void DccPage::cmdEstopDCC_Click() {
    if (!desk_.services.link.CheckPort()) {
        return;
    }
    desk_.ForceSpeedsToZero();
    desk_.services.link.Transact(
        DccEstop(Steps(), desk_.Block(), CheckDCCDirection_->isChecked(), Address()));
}

void DccPage::Command1_Click(int index) {
    if (!desk_.services.link.CheckPort()) {
        return;
    }
    DccFunctionSet functions;
    for (std::size_t i = 0; i < kDccFunctionCount; ++i) {
        functions[i] = Check_Pattern_[i]->isChecked();
    }
    if (const auto command = DccFunctions(index, desk_.Block(), functions, Address())) {
        desk_.services.link.Transact(*command);
    }
}

}  // namespace zelvar
