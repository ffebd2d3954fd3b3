// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/point_group.h"

#include <QVBoxLayout>

#include "controls/naming.h"
#include "protocol/accessories.h"

namespace zelvar {

namespace {

constexpr int kLastModule = 15;
constexpr int kLastDevice = 511;
constexpr int kLastModuleDevice = 63;

}  // namespace

PointGroup::PointGroup(const Services& services, QWidget* parent)
    : QGroupBox(QStringLiteral("Points (JS70)"), parent),
      services_(services),
      chkTestJS70selectmodule_(Named(new QCheckBox(QStringLiteral("Module Select"), this),
                                     "chkTestJS70selectmodule", "Name the point motor by module")),
      lblTestJS70_{CaptionLabel(IndexedName("lblTestJS70", 0), QStringLiteral("JS70 Device"), this),
                   CaptionLabel(IndexedName("lblTestJS70", 1), QStringLiteral("Device"), this)},
      UpDowntestJS70module_(ClampedField(QStringLiteral("UpDowntestJS70module"),
                                         QStringLiteral("txtTestJS70module"),
                                         QStringLiteral("JS70 module"), 0, kLastModule, this)),
      UpDownTestJS70device_(ClampedField(QStringLiteral("UpDownTestJS70device"),
                                         QStringLiteral("txtTestJS70device"),
                                         QStringLiteral("JS70 device"), 0, kLastDevice, this)),
      cmdTestJS70_{Named(new QPushButton(QStringLiteral("Straight"), this),
                         IndexedName("cmdTestJS70", 0), QStringLiteral("Set the point straight")),
                   Named(new QPushButton(QStringLiteral("Thrown"), this),
                         IndexedName("cmdTestJS70", 1), QStringLiteral("Set the point thrown"))} {
    LayOut();
    connect(chkTestJS70selectmodule_, &QCheckBox::toggled, this,
            &PointGroup::chkTestJS70selectmodule_Click);
    for (int index : {0, 1}) {
        connect(cmdTestJS70_[index], &QPushButton::clicked, this,
                [this, index] { cmdTestJS70_Click(index); });
    }
    chkTestJS70selectmodule_Click();
}

void PointGroup::LayOut() {
    lblTestJS70_[1]->setBuddy(UpDownTestJS70device_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(chkTestJS70selectmodule_);
    // In device mode the device stands right beside the first label.
    layout->addLayout(
        Row({lblTestJS70_[0], UpDowntestJS70module_, lblTestJS70_[1], UpDownTestJS70device_}));
    layout->addLayout(Row({cmdTestJS70_[0], cmdTestJS70_[1]}));
}

void PointGroup::chkTestJS70selectmodule_Click() {
    const bool byModule = chkTestJS70selectmodule_->isChecked();
    const QString caption =
        byModule ? QStringLiteral("JS70 Module") : QStringLiteral("JS70 Device");
    lblTestJS70_[0]->setText(caption);
    lblTestJS70_[0]->setAccessibleName(caption);
    lblTestJS70_[0]->setBuddy(byModule ? UpDowntestJS70module_ : UpDownTestJS70device_);
    UpDowntestJS70module_->setVisible(byModule);
    lblTestJS70_[1]->setVisible(byModule);
    UpDownTestJS70device_->SetMaximum(byModule ? kLastModuleDevice : kLastDevice);
    if (byModule) {
        txtTestJS70device_Change();
    }
}

void PointGroup::txtTestJS70device_Change() {
    UpDownTestJS70device_->Clamp();
}

void PointGroup::cmdTestJS70_Click(int index) {
    if (!services_.link.CheckPort()) {
        return;
    }
    const bool thrown = index == 1;
    const int device = UpDownTestJS70device_->Value();
    services_.link.Transact(chkTestJS70selectmodule_->isChecked()
                                ? SetModulePoint(UpDowntestJS70module_->Value(), device, thrown)
                                : SetPoint(device, thrown));
}

}  // namespace zelvar
