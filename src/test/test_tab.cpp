// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/test_tab.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "controls/naming.h"
#include "controls/number_text.h"
#include "controls/palette.h"
#include "protocol/blocks.h"
#include "test/accessories/accessory_groups.h"
#include "test/accessories/block_link_group.h"
#include "test/accessories/point_group.h"

namespace zelvar {

namespace {

constexpr int kLastBlock = 255;
constexpr int kMccPage = 2;
/// Pixels around the status line, which may get a ground of its own.
constexpr int kStatusMargin = 4;

}  // namespace

TestTab::TestTab(const Services& services, QWidget* parent)
    : QWidget(parent),
      desk_{services},
      lblTestSystemStatus_(Named(new QLabel(this), "lblTestSystemStatus", "System status")),
      CommandTestFBM_(Named(new QPushButton(QStringLiteral("Feedback Monitor"), this),
                            "CommandTestFBM", "Show the feedback monitor")),
      lblTestBlock_(CaptionLabel(QStringLiteral("lblTestBlock"), QStringLiteral("Block"), this)),
      UpDown_Block_(new SpinField(QStringLiteral("UpDown_Block"), QStringLiteral("txtTestBlock"),
                                  QStringLiteral("Block of the locomotive"), 0, kLastBlock, this)),
      CommandTestClearBlock_(Named(new QPushButton(QStringLiteral("Clear Block"), this),
                                   "CommandTestClearBlock", "Clear the block")),
      SSTab2_(Named(new QTabWidget(this), "SSTab2", "Kind of locomotive")) {
    desk_.block = UpDown_Block_;
    analogPage_ = new AnalogPage(desk_, this);
    dccPage_ = new DccPage(desk_, this);
    mccPage_ = new MccPage(desk_, this);

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
    const Services& services = desk_.services;
    auto* layout = new QVBoxLayout;
    layout->addWidget(new PointGroup(services, this));
    layout->addWidget(new SignalGroup(services, this));
    layout->addWidget(new OutputGroup(services, this));
    layout->addWidget(new BlockLinkGroup(services, this));
    layout->addStretch();
    return layout;
}

void TestTab::ConnectControls() {
    connect(SSTab2_, &QTabWidget::currentChanged, this, &TestTab::SSTab2_Change);
    connect(UpDown_Block_, &SpinField::Change, this, &TestTab::txtTestBlock_Change);
    connect(CommandTestClearBlock_, &QPushButton::clicked, this,
            &TestTab::CommandTestClearBlock_Click);
    connect(CommandTestFBM_, &QPushButton::clicked, this, &TestTab::CommandTestFBM_Click);
}

void TestTab::ShowSystemState(SystemState state) {
    const QString text = Text(SystemStateText(state));
    lblTestSystemStatus_->setText(text);
    lblTestSystemStatus_->setAccessibleName(text);
    SetTextColour(lblTestSystemStatus_, SystemStateColour(state));
}

void TestTab::ShowBlockSpeed(const BlockSpeedReport& report) {
    if (Val(UpDown_Block_->text().toStdString()) == report.block) {
        analogPage_->ShowSpeed(Text(SpeedReadOut(report.speed, report.forward)));
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
    UpDown_Block_->Clamp();
    analogPage_->ShowUnknownSpeed();
}

void TestTab::CommandTestClearBlock_Click() {
    if (!desk_.services.link.CheckPort()) {
        return;
    }
    {
        const QScopedValueRollback<bool> inhibit(desk_.inhibitSpeedEvents, true);
        desk_.analogSpeed->Put(0);
        analogPage_->ShowUnknownSpeed();
        desk_.dccSpeed->Put(0);
        analogPage_->Rest();
        dccPage_->RestDirection();
        dccPage_->ClearFunctions();
    }
    desk_.services.link.Transact(ClearBlock(desk_.Block()));
}

void TestTab::CommandTestFBM_Click() {
    Q_EMIT FeedbackMonitorWanted();
}

}  // namespace zelvar
