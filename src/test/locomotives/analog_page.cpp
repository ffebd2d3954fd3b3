// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/locomotives/analog_page.h"

#include <QGridLayout>
#include <QScopedValueRollback>

#include "controls/arrange.h"
#include "controls/command_button.h"
#include "controls/naming.h"
#include "controls/number_text.h"
#include "protocol/locomotives.h"
#include "test/locomotives/drive_controls.h"
#include "test/locomotives/speed_read_out.h"

namespace zelvar {

namespace {

constexpr int kTopSpeed = 63;
constexpr int kTopAcceleration = 127;
constexpr int kTopHfi = 15;
/// The read-out while the speed of the block is unknown.
constexpr const char* kUnknownSpeed = "---";
/// Pixels between the slider's number and the read-out, then within it beside and around its text.
constexpr int kDisplayGap = 12;
constexpr int kDisplayMargin = 6;
constexpr int kDisplayPadding = 2;

QLabel* Caption(int index, const char* caption, QWidget* parent) {
    return CaptionLabel(IndexedName("lblTestAnalog", index), ToQString(caption), parent);
}

}  // namespace

AnalogPage::AnalogPage(const Services& services, const SpinField& block, QWidget* parent)
    : QWidget(parent),
      services_(services),
      block_(block),
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
    Reset();
    LayOut();
    ConnectControls();
}

void AnalogPage::LayOut() {
    lblTestAnalog_[0]->setBuddy(AnalogSpeed_);
    lblTestAnalogSpeed_->setAlignment(Qt::AlignCenter);
    // Framed like a display, to distinguish it from the slider's own number beside it.
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
    connect(AnalogSpeed_, &SpeedSlider::valueReported, this, &AnalogPage::AnalogSpeed_Change);
    connect(CheckAnalogDirection_, &QCheckBox::toggled, this,
            &AnalogPage::CheckAnalogDirection_Click);
    connect(CheckAnalogLight_, &QCheckBox::toggled, this, &AnalogPage::CheckAnalogLight_Click);
    SendOnClick(CommandSetHFI_, services_.link, [this] { return SetHfi(UpDownTestHFI_->value()); });
    connect(cmdEstopAnalog_, &QPushButton::clicked, this, &AnalogPage::cmdEstopAnalog_Click);
}

void AnalogPage::ShowSpeed(const QString& text) {
    lblTestAnalogSpeed_->setText(text);
    lblTestAnalogSpeed_->setAccessibleName(QStringLiteral("Speed of the block: ") + text);
}

void AnalogPage::ShowUnknownSpeed() {
    ShowSpeed(ToQString(kUnknownSpeed));
}

void AnalogPage::StopSlider() {
    const QScopedValueRollback<bool> inhibit(inhibitSpeedEvents_, true);
    AnalogSpeed_->putValue(0);
}

void AnalogPage::Reset() {
    StopSlider();
    ShowUnknownSpeed();
    const QScopedValueRollback<bool> inhibit(inhibitSpeedEvents_, true);
    CheckAnalogDirection_->setChecked(true);
    CheckAnalogLight_->setChecked(false);
}

void AnalogPage::AnalogSpeed_Change() {
    if (!inhibitSpeedEvents_ && services_.link.CheckPort()) {
        SendSpeed();
    }
}

void AnalogPage::CheckAnalogDirection_Click() {
    if (!inhibitSpeedEvents_ && services_.link.IsOpen()) {
        SendSpeed();
    }
}

void AnalogPage::CheckAnalogLight_Click() {
    if (!inhibitSpeedEvents_ && services_.link.IsOpen()) {
        services_.link.Transact(AnalogLight(block_.value(), CheckAnalogLight_->isChecked()));
    }
}

void AnalogPage::cmdEstopAnalog_Click() {
    if (!services_.link.CheckPort()) {
        return;
    }
    StopSlider();
    Q_EMIT emergencyStop();
    const bool forward = CheckAnalogDirection_->isChecked();
    services_.link.Transact(AnalogSpeed(block_.value(), 0, forward));
    ShowSpeed(ToQString(SpeedReadOut(0, forward)));
}

void AnalogPage::SendSpeed() {
    const int speed = AnalogSpeed_->value();
    const bool forward = CheckAnalogDirection_->isChecked();
    // The number itself decides: 0.4 is an acceleration, although it is sent as 0.
    if (Val(UpDownTestAcceleration_->text().toStdString()) == 0) {
        services_.link.Transact(AnalogSpeed(block_.value(), speed, forward));
        ShowSpeed(ToQString(SpeedReadOut(speed, forward)));
        return;
    }
    services_.link.Transact(
        AnalogSpeedRamp(block_.value(), speed, forward, UpDownTestAcceleration_->value()));
    // The slider shows where the ramp ends, not how fast the locomotive is.
    ShowUnknownSpeed();
}

}  // namespace zelvar
