// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/mcc_page.h"

#include <QGridLayout>

#include "controls/arrange.h"
#include "controls/command_button.h"
#include "controls/naming.h"
#include "test/locomotives/drive_controls.h"

namespace zelvar {

namespace {

constexpr int kLastDecoder = 4095;
constexpr int kTopAcceleration = 7;

constexpr std::array<const char*, kMccFunctionCount> kFunctionCaptions{
    "Light", "Brake", "Left", "Right", "F1", "F2", "F3", "F4"};
constexpr int kFunctionColumns = 4;

QLabel* Caption(int index, const char* caption, QWidget* parent) {
    return CaptionLabel(IndexedName("lblTestMCC", index), ToQString(caption), parent);
}

}  // namespace

MccPage::MccPage(const Services& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      MCCspeed_(Named(new SpeedSlider(kMccTopSpeed15, this), "MCCspeed", "MCC speed")),
      CheckMCC30_(Named(new QCheckBox(QStringLiteral("30 Steps"), this), "CheckMCC30",
                        "Drive with 30 speed steps")),
      lblTestMCC_{Caption(0, "Decoder", this), Caption(1, "MCC Speed", this),
                  Caption(2, "Acceleration", this)},
      UpDownMCCdecoder_(
          ClampedField(QStringLiteral("UpDownMCCdecoder"), QStringLiteral("txtTestMCCdecoder"),
                       QStringLiteral("MCC decoder"), 0, kLastDecoder, this, lblTestMCC_[0])),
      UpDownTestMCCacceleration_(ClampedField(QStringLiteral("UpDownTestMCCacceleration"),
                                              QStringLiteral("txtTestMCCacceleration"),
                                              QStringLiteral("Acceleration of the MCC locomotive"),
                                              0, kTopAcceleration, this, lblTestMCC_[2])),
      cmdTestMCCfunction_(Named(new QPushButton(QStringLiteral("Set Function"), this),
                                "cmdTestMCCfunction", "Set the MCC functions")),
      cmdEstopMCC_(EstopButton("cmdEstopMCC", "Emergency stop of the MCC locomotive", this)) {
    BuildFunctions();
    LayOut();
    ConnectControls();
}

void MccPage::BuildFunctions() {
    for (std::size_t i = 0; i < kMccFunctionCount; ++i) {
        const QString caption = ToQString(kFunctionCaptions[i]);
        chkTestMCCfunction_[i] =
            Named(new QCheckBox(caption, this), IndexedName("chkTestMCCfunction", i),
                  QStringLiteral("MCC function ") + caption);
    }
}

QLayout* MccPage::LayOutFunctions() {
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < kMccFunctionCount; ++i) {
        const int place = static_cast<int>(i);
        grid->addWidget(chkTestMCCfunction_[i], place / kFunctionColumns, place % kFunctionColumns);
    }
    grid->addWidget(cmdTestMCCfunction_, 0, kFunctionColumns, 2, 1);
    return grid;
}

void MccPage::LayOut() {
    lblTestMCC_[1]->setBuddy(MCCspeed_);
    auto* layout = new QGridLayout(this);
    layout->addWidget(lblTestMCC_[0], 0, 0);
    layout->addLayout(Row({UpDownMCCdecoder_}), 0, 1, 1, 2);
    layout->addWidget(lblTestMCC_[1], 1, 0);
    layout->addWidget(MCCspeed_, 1, 1);
    layout->addWidget(SliderReadOut(QStringLiteral("lblMCCSpeedValue"), MCCspeed_, kMccTopSpeed30),
                      1, 2);
    layout->addLayout(Row({CheckMCC30_}), 2, 1, 1, 2);
    layout->addWidget(lblTestMCC_[2], 3, 0);
    layout->addLayout(Row({UpDownTestMCCacceleration_}), 3, 1, 1, 2);
    layout->addLayout(LayOutFunctions(), 4, 0, 1, 3);
    layout->setRowStretch(5, 1);
    layout->addWidget(cmdEstopMCC_, 6, 0, 1, 3);
    layout->setColumnStretch(1, 1);
    SetTabOrder({UpDownMCCdecoder_, MCCspeed_, CheckMCC30_, UpDownTestMCCacceleration_,
                 chkTestMCCfunction_[0]});
    SetTabOrder({chkTestMCCfunction_.back(), cmdTestMCCfunction_, cmdEstopMCC_});
}

void MccPage::ConnectControls() {
    connect(MCCspeed_, &SpeedSlider::valueReported, this, &MccPage::MCCspeed_Change);
    connect(CheckMCC30_, &QCheckBox::toggled, this, &MccPage::CheckMCC30_Click);
    SendOnClick(cmdTestMCCfunction_, services_.link, [this] { return Functions(); });
    connect(cmdEstopMCC_, &QPushButton::clicked, this, &MccPage::cmdEstopMCC_Click);
}

void MccPage::MCCspeed_Change() {
    if (!services_.link.CheckPort()) {
        return;
    }
    // The slider's own maximum decides the step mode, not the box.
    const int code = MccSpeedCode(MCCspeed_->value(), MCCspeed_->maximum());
    services_.link.Transact(
        MccSpeed(UpDownMCCdecoder_->value(), code, UpDownTestMCCacceleration_->value()));
}

void MccPage::CheckMCC30_Click() {
    // A slider that was not at 0 sends its 0 in the old step mode; speed 0 in the new one follows.
    MCCspeed_->putValue(0);
    MCCspeed_->setMaximum(CheckMCC30_->isChecked() ? kMccTopSpeed30 : kMccTopSpeed15);
    if (services_.link.IsOpen()) {
        MCCspeed_Change();
    }
}

void MccPage::cmdEstopMCC_Click() {
    if (!services_.link.CheckPort()) {
        return;
    }
    // A slider that was not at 0 sends speed 0 first. This is intentional.
    MCCspeed_->putValue(0);
    services_.link.Transact(MccEstop(UpDownMCCdecoder_->value()));
}

Command MccPage::Functions() const {
    MccFunctionSet functions;
    for (std::size_t i = 0; i < chkTestMCCfunction_.size(); ++i) {
        functions[i] = chkTestMCCfunction_[i]->isChecked();
    }
    return MccFunctions(UpDownMCCdecoder_->value(), functions);
}

}  // namespace zelvar
