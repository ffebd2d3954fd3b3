// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>

#include "config/erase_question.h"
#include "config/master_slave_check.h"
#include "config/selection.h"
#include "controls/command_button.h"
#include "controls/naming.h"

namespace zelvar {

VDTab::VDTab(const Services& services, const ModuleRegistry& registry, QWidget* parent)
    : QWidget(parent),
      services_(services),
      registry_(registry),
      commands_(services,
                {[this] { return ChosenVDModules(registry_, SelectionOf(*cboVD_)); }, {}}),
      cboVD_(Named(new DropDownList(this), "cboVD", "Traction module")),
      lblVDtype_(Named(new QLabel(this), "lblVDtype", "Type of the traction module")),
      chkVDperm_(Named(new QCheckBox(QStringLiteral("Permanent"), this), "chkVDperm",
                       "Permanent settings of the traction modules")),
      cmdErase_(MakeCommandButton(QStringLiteral("Erase All"), QStringLiteral("cmdErase"),
                                  QStringLiteral("Erase all settings of the traction modules"),
                                  this)) {
    lblVDtype_->setVisible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(LayOutTarget());
    layout->addLayout(LayOutSettings());
    layout->addStretch(1);
    ConnectControls();
}

QLayout* VDTab::LayOutTarget() {
    cboVD_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboVD_->setMinimumContentsLength(8);
    auto* label = new QLabel(QStringLiteral("Module"), this);
    label->setBuddy(cboVD_);
    auto* target = new QHBoxLayout;
    target->addWidget(label);
    target->addWidget(cboVD_);
    target->addWidget(chkVDperm_);
    target->addWidget(lblVDtype_);
    target->addStretch();
    target->addWidget(cmdErase_);
    return target;
}

QLayout* VDTab::LayOutSettings() {
    auto* grid = new QGridLayout;
    int buttonWidth = 0;
    for (const VDSetting& setting : VDSettings()) {
        auto* panel = new VDSettingPanel(setting, this);
        panels_.push_back(panel);
        if (setting.options.parameter == kMasterSlaveParameter) {
            masterSlavePanel_ = panel;
        }
        grid->addWidget(panel, setting.place.row, setting.place.column);
        grid->setColumnStretch(setting.place.column, 1);
        buttonWidth = std::max(buttonWidth, panel->ButtonWidth());
    }
    int rowHeight = 0;
    for (VDSettingPanel* panel : panels_) {
        panel->SetButtonWidth(buttonWidth);
        rowHeight = std::max(rowHeight, panel->sizeHint().height());
    }
    for (int row = 0; row < grid->rowCount(); ++row) {
        grid->setRowMinimumHeight(row, rowHeight);
    }
    return grid;
}

void VDTab::ConnectControls() {
    connect(cboVD_, &DropDownList::chosen, this, &VDTab::cboVD_Click);
    connect(cmdErase_, &QPushButton::clicked, this, &VDTab::cmdErase_Click);
    for (VDSettingPanel* panel : panels_) {
        ConnectPanel(*panel);
    }
}

void VDTab::ConnectPanel(VDSettingPanel& panel) {
    connect(&panel, &VDSettingPanel::buttonClicked, this, [this, &panel](int index) {
        if (&panel == masterSlavePanel_) {
            cmdMS_Click(panel, index);
        } else {
            cmdSetting_Click(panel, index);
        }
    });
    connect(&panel, &VDSettingPanel::buttonLostFocus, this, [&panel] { panel.RestoreColours(); });
    connect(&panel, &VDSettingPanel::fieldStepped, this,
            [&panel](int field) { panel.RestoreFieldColour(field); });
    if (panel.Setting().numbers.clamped == Clamped::OnChange) {
        connect(&panel, &VDSettingPanel::fieldChanged, this,
                [this, &panel](int field) { txtSetting_Change(panel, field); });
    }
}

void VDTab::Fill(const SelectionList& list) {
    FillSelection(*cboVD_, list);
    UpdateVDTypeView();
}

void VDTab::cboVD_Click() {
    UpdateVDTypeView();
}

void VDTab::UpdateVDTypeView() {
    const ModuleSelection selection = SelectionOf(*cboVD_);
    if (!selection.data) {
        return;
    }
    const int chosen = *selection.data;
    const VDType type =
        chosen < 0 ? VDType::Unknown : registry_.vdTypes.at(static_cast<unsigned>(chosen));
    const VDTypeView view = VDTypeViewOf(chosen, type);
    for (VDSettingPanel* panel : panels_) {
        panel->ShowFor(view.frames, panel == masterSlavePanel_ && view.withMSFrame);
        panel->ShowVDGetButtons(view.getButtons);
    }
    lblVDtype_->setText(ToQString(view.caption));
    lblVDtype_->setVisible(view.captionVisible);
}

void VDTab::cmdSetting_Click(VDSettingPanel& panel, int index) {
    panel.ClampOnClick();
    // Several commands may follow; without a port one message is enough.
    if (!services_.link.CheckPort()) {
        return;
    }
    for (std::size_t i = 0; i < VDCommandCount(panel.Setting()) && services_.link.IsOpen(); ++i) {
        // Read again each time: a reply to one command may change what the next one sends.
        if (const std::optional<ModuleCommand> command =
                VDCommandOf(panel.Setting(), i, index, chkVDperm_->isChecked(), panel.Input())) {
            commands_.SendModuleCommand(*command);
        }
    }
}

void VDTab::cmdMS_Click(VDSettingPanel& panel, int index) {
    // Either of the two buttons starts the check.
    if (SelectionOf(*cboVD_).data == kAllVDxx) {
        MasterSlaveCheck(services_, registry_).Run();
    } else {
        cmdSetting_Click(panel, index);
    }
}

void VDTab::txtSetting_Change(VDSettingPanel& panel, int field) {
    panel.ClampField(field);
}

void VDTab::cmdErase_Click() {
    if (AgreesToErase(services_.messageBox, "VD-units")) {
        commands_.SendModuleCommand(kVDErase);
    }
}

void VDTab::ShowVDConfigReply(const Reply& reply) {
    const std::optional<VDReply> read =
        ReadVDConfigReply(reply, SelectionOf(*cboVD_).data, chkVDperm_->isChecked());
    if (!read) {
        return;
    }
    for (VDSettingPanel* panel : panels_) {
        if (panel->ShowReply(*read)) {
            return;
        }
    }
}

}  // namespace zelvar
