// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>

#include "config/kb_config_view.h"
#include "config/module_commands.h"
#include "link/services.h"
#include "protocol/status.h"
#include "protocol/unit_settings.h"

namespace zelvar {

/// The "KB-x" tab: the central unit.
class KBTab : public QWidget {
    Q_OBJECT

  public:
    KBTab(const Services& services, QWidget* parent = nullptr);

    /// Shows the type of the unit that was found, and the controls that it supports.
    void ShowUnit(const CentralUnit& unit);

    /// Shows the unit's configuration switches, in green.
    void ShowKBConfigReply(const Reply& reply);

  private:
    using Boxes = std::array<QCheckBox*, kKBSwitches>;

    void ShowKBConfigView(const KBConfigView& view);
    QFrame* BuildConfigFrame();
    QFrame* BuildOptionsFrame();
    QFrame* Build64DMFrame();
    QFrame* BuildTransparentFrame();
    void ConnectControls();

    void cmdConfig_Click(int index);
    void cmdConfig_LostFocus();
    void cmdOptions_Click();
    void cmdJS70dm_Click();
    void cmdTM_Click(int index);

    Services services_;
    ModuleCommands commands_;
    QLabel* lblKBtype_;
    QCheckBox* chkKBperm_;
    Boxes chkKBEconfig_{};
    std::array<QPushButton*, 2> cmdConfig_{};
    QFrame* frmConfig_ = nullptr;
    Boxes chkKBEoptions_{};
    QPushButton* cmdOptions_ = nullptr;
    Boxes chkJSdevicemode_{};
    QPushButton* cmdJS70dm_ = nullptr;
    std::array<QPushButton*, kTransparentModes> cmdTM_{};
};

}  // namespace zelvar
