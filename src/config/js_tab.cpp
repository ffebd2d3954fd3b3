// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "config/selection.h"
#include "controls/naming.h"

namespace zelvar {

JSTab::JSTab(const Services& /*services*/, QWidget* parent)
    : QWidget(parent),
      cboJS_(Named(new DropDownList(this), "cboJS", "Point-motor module")),
      cmdGetJSConfig_(Named(new QPushButton(QStringLiteral("Get Configuration"), this),
                            "cmdGetJSConfig", "Get the configuration of the module")),
      cmdHideJSConfig_(Named(new QPushButton(QStringLiteral("Hide Result"), this),
                             "cmdHideJSConfig", "Hide the configuration report")),
      textJSReport_(Named(new QPlainTextEdit(this), "textJSReport", "Configuration report")) {
    auto* layout = new QVBoxLayout(this);
    auto* target = new QHBoxLayout;
    target->addWidget(cboJS_);
    target->addWidget(cmdGetJSConfig_);
    target->addWidget(cmdHideJSConfig_);
    target->addStretch();
    layout->addLayout(target);
    layout->addWidget(textJSReport_);
    layout->addStretch();
    ShowJSReportControls(false);
    connect(cboJS_, &DropDownList::Chosen, this, [this] { JsSelectionChanged(); });
}

void JSTab::Fill(const SelectionList& list) {
    FillSelection(*cboJS_, list);
    JsSelectionChanged();
}

void JSTab::JsSelectionChanged() {
    ShowJSReportControls(cboJS_->SelectedData(kAllJs) != kAllJs);
}

void JSTab::ShowJSReportControls(bool canGet) {
    cmdGetJSConfig_->setVisible(canGet);
    cmdHideJSConfig_->setVisible(false);
    textJSReport_->setVisible(false);
}

}  // namespace zelvar
