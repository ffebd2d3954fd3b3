// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <vector>

#include "config/module_commands.h"
#include "config/selection_list.h"
#include "config/vd_setting_panel.h"
#include "controls/drop_down_list.h"
#include "link/services.h"
#include "status/module_registry.h"

namespace zelvar {

/// The "VDxx / QLRX-s" tab: the settings of the traction modules. The frames of the settings are
/// built from the rows of `VDSettings`; in the names of their handlers `Setting` means the
/// row's own name, so that `cmdSetting_Click` is the Click of `cmdHFI`, `cmdAL` and so on.
class VDTab : public QWidget {
    Q_OBJECT

  public:
    VDTab(const Services& services, const ModuleRegistry& registry, QWidget* parent = nullptr);

    /// Fills `cboVD` again and selects the entry that the list names.
    void Fill(const SelectionList& list);

    /// Shows a traction module's configuration reply, if the form shows that module.
    void ShowVDConfigReply(const Reply& reply);

  private:
    QLayout* LayOutTarget();
    QLayout* LayOutSettings();
    void ConnectControls();
    void ConnectPanel(VDSettingPanel& panel);

    void cboVD_Click();
    void UpdateVDTypeView();
    void cmdSetting_Click(VDSettingPanel& panel, int index);
    void cmdMS_Click(VDSettingPanel& panel, int index);
    void txtSetting_Change(VDSettingPanel& panel, int field);
    void cmdErase_Click();

    Services services_;
    const ModuleRegistry& registry_;
    ModuleCommands commands_;
    DropDownList* cboVD_;
    QLabel* lblVDtype_;
    QCheckBox* chkVDperm_;
    QPushButton* cmdErase_;
    std::vector<VDSettingPanel*> panels_;
    VDSettingPanel* masterSlavePanel_ = nullptr;
};

}  // namespace zelvar
