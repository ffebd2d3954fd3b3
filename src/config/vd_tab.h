// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QWidget>

#include "controls/drop_down_list.h"
#include "link/services.h"
#include "status/module_registry.h"
#include "status/selection_list.h"

namespace zelvar {

/// The "VDxx / QLRX-s" tab: the settings of the traction modules.
class VDTab : public QWidget {
    Q_OBJECT

  public:
    VDTab(const Services& services, const ModuleRegistry& registry, QWidget* parent = nullptr);

    /// Fills `cboVD` anew and selects what the list says.
    void Fill(const SelectionList& list);

  private:
    DropDownList* cboVD_;
    QLabel* lblVDtype_;
};

}  // namespace zelvar
