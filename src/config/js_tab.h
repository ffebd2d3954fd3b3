// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include "controls/drop_down_list.h"
#include "link/services.h"
#include "status/selection_list.h"

namespace zelvar {

/// The "JS70" tab: the settings of the point-motor modules.
class JSTab : public QWidget {
    Q_OBJECT

  public:
    JSTab(const Services& services, QWidget* parent = nullptr);

    /// Fills `cboJS` anew and selects what the list says.
    void Fill(const SelectionList& list);

  private:
    void JsSelectionChanged();
    void ShowJSReportControls(bool canGet);

    DropDownList* cboJS_;
    QPushButton* cmdGetJSConfig_;
    QPushButton* cmdHideJSConfig_;
    QPlainTextEdit* textJSReport_;
};

}  // namespace zelvar
