// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "config/selection.h"
#include "controls/naming.h"

namespace zelvar {

VDTab::VDTab(const Services& /*services*/, const ModuleRegistry& /*registry*/, QWidget* parent)
    : QWidget(parent),
      cboVD_(Named(new DropDownList(this), "cboVD", "Traction module")),
      lblVDtype_(Named(new QLabel(this), "lblVDtype", "Type of the traction module")) {
    lblVDtype_->setVisible(false);
    auto* layout = new QVBoxLayout(this);
    auto* target = new QHBoxLayout;
    target->addWidget(cboVD_);
    target->addWidget(lblVDtype_);
    target->addStretch();
    layout->addLayout(target);
    layout->addStretch();
}

void VDTab::Fill(const SelectionList& list) {
    FillSelection(*cboVD_, list);
}

}  // namespace zelvar
