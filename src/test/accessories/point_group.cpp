// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/point_group.h"

#include <QVBoxLayout>

#include "controls/arrange.h"
#include "controls/naming.h"
#include "protocol/accessories.h"

namespace zelvar {

namespace {

constexpr int kLastModule = 15;
constexpr int kLastDevice = 511;
constexpr int kLastModuleDevice = 63;

}  // namespace

PointGroup::PointGroup(Link& link, QWidget* parent)
    : CommandGroup(QStringLiteral("Points (JS70)"), link, parent),
      chkTestJS70selectmodule_(Named(new QCheckBox(QStringLiteral("Module Select"), this),
                                     "chkTestJS70selectmodule", "Name the point motor by module")),
      module_(AddField({IndexedName("lblTestJS70", 0), QStringLiteral("JS70 Device"),
                        QStringLiteral("UpDowntestJS70module"), QStringLiteral("txtTestJS70module"),
                        QStringLiteral("JS70 module"), kLastModule})),
      device_(AddField({IndexedName("lblTestJS70", 1), QStringLiteral("Device"),
                        QStringLiteral("UpDownTestJS70device"), QStringLiteral("txtTestJS70device"),
                        QStringLiteral("JS70 device"), kLastDevice})),
      straight_(AddButton(IndexedName("cmdTestJS70", 0), QStringLiteral("Straight"),
                          QStringLiteral("Set the point straight"),
                          [this] { return SetTo(false); })),
      thrown_(AddButton(IndexedName("cmdTestJS70", 1), QStringLiteral("Thrown"),
                        QStringLiteral("Set the point thrown"), [this] { return SetTo(true); })) {
    LayOut();
    connect(chkTestJS70selectmodule_, &QCheckBox::toggled, this,
            &PointGroup::chkTestJS70selectmodule_Click);
    chkTestJS70selectmodule_Click();
}

void PointGroup::LayOut() {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(chkTestJS70selectmodule_);
    // Without the module, the device is right beside the first label.
    layout->addLayout(Row({module_.label, module_.field, device_.label, device_.field}));
    layout->addLayout(Row({straight_, thrown_}));
}

void PointGroup::chkTestJS70selectmodule_Click() {
    const bool byModule = chkTestJS70selectmodule_->isChecked();
    const QString caption =
        byModule ? QStringLiteral("JS70 Module") : QStringLiteral("JS70 Device");
    module_.label->setText(caption);
    module_.label->setAccessibleName(caption);
    module_.label->setBuddy(byModule ? module_.field : device_.field);
    module_.field->setVisible(byModule);
    device_.label->setVisible(byModule);
    device_.field->setMaximum(byModule ? kLastModuleDevice : kLastDevice);
    if (byModule) {
        device_.field->clamp();
    }
}

Command PointGroup::SetTo(bool thrown) const {
    const int device = device_.field->value();
    return chkTestJS70selectmodule_->isChecked()
               ? SetModulePoint(module_.field->value(), device, thrown)
               : SetPoint(device, thrown);
}

}  // namespace zelvar
