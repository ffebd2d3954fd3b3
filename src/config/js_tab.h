// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include <functional>
#include <vector>

#include "config/module_commands.h"
#include "config/selection_list.h"
#include "controls/drop_down_list.h"
#include "controls/spin_field.h"
#include "link/services.h"

namespace zelvar {

/// The "JS70" tab: the settings of the point-motor modules.
class JSTab : public QWidget {
    Q_OBJECT

  public:
    JSTab(const Services& services, QWidget* parent = nullptr);

    /// Fills `cboJS` again and selects the entry that the list names.
    void Fill(const SelectionList& list);

  private:
    QLayout* LayOutTarget();
    QLayout* LayOutSettings();
    QLayout* LayOutPower();
    void ConnectControls();
    /// Lets a click bring the fields into their ranges and send a module command.
    void SendOnClick(QPushButton* button, std::vector<SpinField*> fields,
                     std::function<ModuleCommand()> command);

    void JsSelectionChanged();
    void ShowJSReportControls(bool canGet);
    void ShowReport(bool shown);

    void cboJS_Click();
    void cmdJSerase_Click();
    void cmdGetJSConfig_Click();
    void cmdHideJSConfig_Click();

    Services services_;
    ModuleCommands commands_;
    DropDownList* cboJS_;
    QCheckBox* chkJSperm_;
    SpinField* updownJSdevice_;
    SpinField* updownJStime_;
    /// The ids are the codes of the powers.
    QButtonGroup* optJSpower_ = new QButtonGroup(this);
    QPushButton* cmdTIME_;
    QPushButton* cmdDeviceTime_;
    QPushButton* cmdDevicePower_;
    QPushButton* cmdJSerase_;
    QPushButton* cmdGetJSConfig_;
    QPushButton* cmdHideJSConfig_;
    QPlainTextEdit* textJSReport_;
};

}  // namespace zelvar
