// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/test_tab.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "controls/arrange.h"
#include "controls/naming.h"
#include "controls/number_text.h"
#include "controls/system_state_label.h"
#include "protocol/blocks.h"
#include "test/accessories/accessory_groups.h"
#include "test/accessories/point_group.h"
#include "test/locomotives/speed_read_out.h"

namespace zelvar {

namespace {

constexpr int kLastBlock = 255;
constexpr int kMccPage = 2;
/// Pixels around the status line, which may have a background of its own.
constexpr int kStatusMargin = 4;

}  // namespace

TestTab::TestTab(const Services& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      lblTestSystemStatus_(Named(new QLabel(this), "lblTestSystemStatus", "System status")),
      CommandTestFBM_(Named(new QPushButton(QStringLiteral("Feedback Monitor"), this),
                            "CommandTestFBM", "Show the feedback monitor")),
      lblTestBlock_(CaptionLabel(QStringLiteral("lblTestBlock"), QStringLiteral("Block"), this)),
      UpDown_Block_(new SpinField(QStringLiteral("UpDown_Block"), QStringLiteral("txtTestBlock"),
                                  QStringLiteral("Block of the locomotive"), 0, kLastBlock, this)),
      CommandTestClearBlock_(Named(new QPushButton(QStringLiteral("Clear Block"), this),
                                   "CommandTestClearBlock", "Clear the block")),
      SSTab2_(Named(new QTabWidget(this), "SSTab2", "Kind of locomotive")),
      analogPage_(new AnalogPage(services, *UpDown_Block_, this)),
      dccPage_(new DccPage(services, *UpDown_Block_, this)),
      mccPage_(new MccPage(services, this)) {
    auto* layout = new QGridLayout(this);
    lblTestSystemStatus_->setMargin(kStatusMargin);
    auto* top = new QHBoxLayout;
    top->addWidget(lblTestSystemStatus_);
    top->addStretch();
    top->addWidget(CommandTestFBM_);
    layout->addLayout(top, 0, 0, 1, 2);
    layout->addWidget(LocomotiveGroup(), 1, 0);
    layout->addLayout(AccessoryColumn(), 1, 1);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(2, 1);
    ConnectControls();
    ShowSystemState(SystemState::Disconnected);
}

QWidget* TestTab::LocomotiveGroup() {
    SSTab2_->addTab(analogPage_, QStringLiteral("Analog"));
    SSTab2_->addTab(dccPage_, QStringLiteral("DCC"));
    SSTab2_->addTab(mccPage_, QStringLiteral("MCC"));
    lblTestBlock_->setBuddy(UpDown_Block_);
    auto* group = new QGroupBox(QStringLiteral("Locomotive"), this);
    auto* layout = new QVBoxLayout(group);
    layout->addLayout(Row({lblTestBlock_, UpDown_Block_, CommandTestClearBlock_}));
    for (QWidget* control :
         {static_cast<QWidget*>(lblTestBlock_), static_cast<QWidget*>(UpDown_Block_),
          static_cast<QWidget*>(CommandTestClearBlock_)}) {
        KeepPlaceWhenHidden(control);
    }
    layout->addWidget(SSTab2_);
    return group;
}

QLayout* TestTab::AccessoryColumn() {
    auto* layout = new QVBoxLayout;
    layout->addWidget(new PointGroup(services_.link, this));
    layout->addWidget(MakeSignalGroup(services_.link, this));
    layout->addWidget(MakeOutputGroup(services_.link, this));
    layout->addWidget(MakeBlockLinkGroup(services_.link, this));
    layout->addStretch();
    return layout;
}

void TestTab::ConnectControls() {
    connect(SSTab2_, &QTabWidget::currentChanged, this, &TestTab::SSTab2_Change);
    connect(UpDown_Block_, &SpinField::textChanged, this, &TestTab::txtTestBlock_Change);
    connect(CommandTestClearBlock_, &QPushButton::clicked, this,
            &TestTab::CommandTestClearBlock_Click);
    connect(CommandTestFBM_, &QPushButton::clicked, this, &TestTab::feedbackMonitorWanted);
    // An emergency stop on one page stops the other page's slider, too.
    connect(analogPage_, &AnalogPage::emergencyStop, dccPage_, &DccPage::StopSlider);
    connect(dccPage_, &DccPage::emergencyStop, analogPage_, &AnalogPage::StopSlider);
}

void TestTab::ShowSystemState(SystemState state) {
    ShowSystemStateIn(*lblTestSystemStatus_, state);
}

void TestTab::ShowBlockSpeed(const BlockSpeedReport& report) {
    if (Val(UpDown_Block_->text().toStdString()) == report.block) {
        analogPage_->ShowSpeed(ToQString(SpeedReadOut(report.speed, report.forward)));
    }
}

void TestTab::SSTab2_Change(int page) {
    // The commands of the MCC page carry no block.
    const bool withBlock = page != kMccPage;
    lblTestBlock_->setVisible(withBlock);
    UpDown_Block_->setVisible(withBlock);
    CommandTestClearBlock_->setVisible(withBlock);
}

void TestTab::txtTestBlock_Change() {
    UpDown_Block_->clamp();
    analogPage_->ShowUnknownSpeed();
}

void TestTab::CommandTestClearBlock_Click() {
    if (!services_.link.CheckPort()) {
        return;
    }
    analogPage_->Reset();
    dccPage_->Reset();
    services_.link.Transact(ClearBlock(UpDown_Block_->value()));
}

}  // namespace zelvar
