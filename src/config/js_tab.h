// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>

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

    /// Fills `cboJS` anew and selects what the list says.
    void Fill(const SelectionList& list);

  private:
    QLayout* LayOutTarget();
    QLayout* LayOutSettings();
    QLayout* LayOutPower();
    void ConnectControls();

    void JsSelectionChanged();
    void ShowJSReportControls(bool canGet);
    void ShowReport(bool shown);
    int PowerCode() const;

    void cboJS_Click();
    void cmdTIME_Click();
    void cmdDeviceTime_Click();
    void cmdDevicePower_Click();
    void cmdJSerase_Click();
    void cmdGetJSConfig_Click();
    void cmdHideJSConfig_Click();

    Services services_;
    ModuleCommands commands_;
    DropDownList* cboJS_;
    QCheckBox* chkJSperm_;
    SpinField* updownJSdevice_;
    SpinField* updownJStime_;
    std::array<QRadioButton*, 4> optJSpower_{};
    QPushButton* cmdTIME_;
    QPushButton* cmdDeviceTime_;
    QPushButton* cmdDevicePower_;
    QPushButton* cmdJSerase_;
    QPushButton* cmdGetJSConfig_;
    QPushButton* cmdHideJSConfig_;
    QPlainTextEdit* textJSReport_;
};

}  // namespace zelvar
