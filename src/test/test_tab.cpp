// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/test_tab.h"

#include <QFormLayout>

#include "controls/naming.h"
#include "controls/number_text.h"
#include "controls/palette.h"

namespace zelvar {

TestTab::TestTab(const Services& /*services*/, QWidget* parent)
    : QWidget(parent),
      lblTestSystemStatus_(Named(new QLabel(this), "lblTestSystemStatus", "System status")),
      txtTestBlock_(Named(new QLineEdit(QStringLiteral("0"), this), "txtTestBlock", "Block")),
      lblTestAnalogSpeed_(
          Named(new QLabel(QStringLiteral("---"), this), "lblTestAnalogSpeed", "Block speed")) {
    auto* layout = new QFormLayout(this);
    layout->addRow(lblTestSystemStatus_);
    layout->addRow(QStringLiteral("Block"), txtTestBlock_);
    layout->addRow(QStringLiteral("Speed"), lblTestAnalogSpeed_);
    ShowSystemState(SystemState::Disconnected);
}

void TestTab::ShowSystemState(SystemState state) {
    lblTestSystemStatus_->setText(Text(SystemStateText(state)));
    SetTextColour(lblTestSystemStatus_, SystemStateColour(state));
}

void TestTab::ShowBlockSpeed(const BlockSpeedReport& report) {
    if (Val(txtTestBlock_->text().toStdString()) == report.block) {
        lblTestAnalogSpeed_->setText(Text(SpeedReadOut(report.speed, report.forward)));
    }
}

}  // namespace zelvar
