// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/analog_page.h"

#include <QGridLayout>

#include "controls/naming.h"
#include "controls/number_text.h"
#include "protocol/locomotives.h"
#include "protocol/reports.h"

namespace zelvar {

namespace {

constexpr int kTopSpeed = 63;
constexpr int kTopAcceleration = 127;
constexpr int kTopHfi = 15;
/// What the read-out shows while the speed of the block is not known.
constexpr const char* kUnknownSpeed = "---";
/// Pixels between the slider's number and the read-out, then within it beside and around its text.
constexpr int kDisplayGap = 12;
constexpr int kDisplayMargin = 6;
constexpr int kDisplayPadding = 2;

QLabel* Caption(int index, const char* caption, QWidget* parent) {
    return CaptionLabel(IndexedName("lblTestAnalog", index), Text(caption), parent);
}

}  // namespace

AnalogPage::AnalogPage(DriveDesk& desk, QWidget* parent)
    : QWidget(parent),
      desk_(desk),
      AnalogSpeed_(Named(new SpeedSlider(kTopSpeed, this), "AnalogSpeed", "Analog speed")),
      CheckAnalogDirection_(Named(new QCheckBox(QStringLiteral("Forward"), this),
                                  "CheckAnalogDirection", "Analog locomotive runs forward")),
      CheckAnalogLight_(Named(new QCheckBox(QStringLiteral("     Light"), this), "CheckAnalogLight",
                              "Light of the analog locomotive")),
      lblTestAnalog_{Caption(0, "Analog Speed", this), Caption(1, "Acceleration", this),
                     Caption(2, "HFI = System global setting", this)},
      UpDownTestAcceleration_(ClampedField(QStringLiteral("UpDownTestAcceleration"),
                                           QStringLiteral("txtTestAcceleration"),
                                           QStringLiteral("Acceleration of the analog locomotive"),
                                           0, kTopAcceleration, this, lblTestAnalog_[1])),
      UpDownTestHFI_(ClampedField(QStringLiteral("UpDownTestHFI"), QStringLiteral("txtTestHFI"),
                                  QStringLiteral("HFI of the system"), 0, kTopHfi, this,
                                  lblTestAnalog_[2])),
      CommandSetHFI_(Named(new QPushButton(QStringLiteral("Set HFI"), this), "CommandSetHFI",
                           "Set the HFI of the system")),
      cmdEstopAnalog_(
          EstopButton("cmdEstopAnalog", "Emergency stop of the analog locomotive", this)),
      lblTestAnalogSpeed_(Named(new QLabel(this), "lblTestAnalogSpeed", "Speed of the block")) {
    desk_.analogSpeed = AnalogSpeed_;
    ShowUnknownSpeed();
    Rest();
    LayOut();
    ConnectControls();
}

void AnalogPage::LayOut() {
    lblTestAnalog_[0]->setBuddy(AnalogSpeed_);
    lblTestAnalogSpeed_->setAlignment(Qt::AlignCenter);
    // Set apart like a display, lest it be taken for the slider's own number beside it.
    lblTestAnalogSpeed_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    lblTestAnalogSpeed_->setMargin(kDisplayPadding);
    lblTestAnalogSpeed_->setToolTip(QStringLiteral("Speed of the block"));
    lblTestAnalogSpeed_->setMinimumWidth(
        lblTestAnalogSpeed_->fontMetrics().horizontalAdvance(QStringLiteral(">>63 ")) +
        2 * kDisplayMargin);

    auto* layout = new QGridLayout(this);
    layout->addWidget(lblTestAnalog_[0], 0, 0);
    layout->addWidget(AnalogSpeed_, 0, 1);
    layout->addWidget(SliderReadOut(QStringLiteral("lblAnalogSpeedValue"), AnalogSpeed_, kTopSpeed),
                      0, 2);
    layout->addWidget(lblTestAnalogSpeed_, 0, 4);
    layout->setColumnMinimumWidth(3, kDisplayGap);
    layout->addLayout(Row({CheckAnalogDirection_, CheckAnalogLight_}), 1, 1, 1, 4);
    layout->addWidget(lblTestAnalog_[1], 2, 0);
    layout->addLayout(Row({UpDownTestAcceleration_}), 2, 1, 1, 4);
    layout->addWidget(lblTestAnalog_[2], 3, 0);
    layout->addLayout(Row({UpDownTestHFI_, CommandSetHFI_}), 3, 1, 1, 4);
    layout->setRowStretch(4, 1);
    layout->addWidget(cmdEstopAnalog_, 5, 0, 1, 5);
    layout->setColumnStretch(1, 1);
}

void AnalogPage::ConnectControls() {
    connect(AnalogSpeed_, &SpeedSlider::Change, this, &AnalogPage::AnalogSpeed_Change);
    connect(CheckAnalogDirection_, &QCheckBox::toggled, this,
            &AnalogPage::CheckAnalogDirection_Click);
    connect(CheckAnalogLight_, &QCheckBox::toggled, this, &AnalogPage::CheckAnalogLight_Click);
    connect(CommandSetHFI_, &QPushButton::clicked, this, &AnalogPage::CommandSetHFI_Click);
    connect(cmdEstopAnalog_, &QPushButton::clicked, this, &AnalogPage::cmdEstopAnalog_Click);
}

void AnalogPage::ShowSpeed(const QString& text) {
    lblTestAnalogSpeed_->setText(text);
    lblTestAnalogSpeed_->setAccessibleName(QStringLiteral("Speed of the block: ") + text);
}

void AnalogPage::ShowUnknownSpeed() {
    ShowSpeed(Text(kUnknownSpeed));
}

void AnalogPage::Rest() {
    CheckAnalogDirection_->setChecked(true);
    CheckAnalogLight_->setChecked(false);
}

void AnalogPage::AnalogSpeed_Change() {
    if (desk_.services.link.CheckPort() && !desk_.inhibitSpeedEvents) {
        SendSpeed();
    }
}

void AnalogPage::CheckAnalogDirection_Click() {
    if (desk_.services.link.IsOpen() && !desk_.inhibitSpeedEvents) {
        SendSpeed();
    }
}

void AnalogPage::CheckAnalogLight_Click() {
    if (desk_.services.link.IsOpen() && !desk_.inhibitSpeedEvents) {
        desk_.services.link.Transact(AnalogLight(desk_.Block(), CheckAnalogLight_->isChecked()));
    }
}

void AnalogPage::CommandSetHFI_Click() {
    if (desk_.services.link.CheckPort()) {
        desk_.services.link.Transact(SetHfi(UpDownTestHFI_->Value()));
    }
}

void AnalogPage::cmdEstopAnalog_Click() {
    if (!desk_.services.link.CheckPort()) {
        return;
    }
    desk_.ForceSpeedsToZero();
    const bool forward = CheckAnalogDirection_->isChecked();
    desk_.services.link.Transact(AnalogSpeed(desk_.Block(), 0, forward));
    ShowSpeed(Text(SpeedReadOut(0, forward)));
}

void AnalogPage::SendSpeed() {
    const int speed = AnalogSpeed_->value();
    const bool forward = CheckAnalogDirection_->isChecked();
    // The number itself decides: 0.4 is an acceleration, though it travels as 0.
    if (Val(UpDownTestAcceleration_->text().toStdString()) == 0) {
        desk_.services.link.Transact(AnalogSpeed(desk_.Block(), speed, forward));
        ShowSpeed(Text(SpeedReadOut(speed, forward)));
        return;
    }
    desk_.services.link.Transact(
        AnalogSpeedRamp(desk_.Block(), speed, forward, UpDownTestAcceleration_->Value()));
    // The slider says where the ramp ends, not where the locomotive is.
    ShowUnknownSpeed();
}

}  // namespace zelvar
