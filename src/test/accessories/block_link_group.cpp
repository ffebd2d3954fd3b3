// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/block_link_group.h"

#include <QGridLayout>

#include "controls/naming.h"
#include "protocol/blocks.h"

namespace zelvar {

namespace {

constexpr int kLastBlock = 255;

enum LinkButton { kLinkBlocks, kLinkInverted, kUnlinkDown, kUnlinkUp };

SpinField* BlockField(int index, QWidget* parent) {
    return ClampedField(IndexedName("UpDownTestLink", index), IndexedName("txtTestLink", index),
                        index == 0 ? QStringLiteral("First block") : QStringLiteral("Second block"),
                        0, kLastBlock, parent);
}

QPushButton* LinkButtonOf(int index, const char* caption, QWidget* parent) {
    return Named(new QPushButton(Text(caption), parent), IndexedName("CommandTestLink", index),
                 Text(caption));
}

}  // namespace

BlockLinkGroup::BlockLinkGroup(const Services& services, QWidget* parent)
    : QGroupBox(QStringLiteral("Block links"), parent),
      services_(services),
      UpDownTestLink_{BlockField(0, this), BlockField(1, this)},
      chkTestUnlinkZero_(Named(new QCheckBox(QStringLiteral("Clear unlinked blocks"), this),
                               "chkTestUnlinkZero", "Clear unlinked blocks")),
      CommandTestLink_{LinkButtonOf(kLinkBlocks, "Link Blocks", this),
                       LinkButtonOf(kLinkInverted, "Link Inverted", this),
                       LinkButtonOf(kUnlinkDown, "Unlink Down", this),
                       LinkButtonOf(kUnlinkUp, "Unlink Up", this)} {
    LayOut();
    for (int index = 0; index < kButtons; ++index) {
        connect(CommandTestLink_[index], &QPushButton::clicked, this,
                [this, index] { CommandTestLink_Click(index); });
    }
}

void BlockLinkGroup::LayOut() {
    auto* layout = new QGridLayout(this);
    for (int index : {0, 1}) {
        auto* label =
            CaptionLabel(IndexedName("lblTestLink", index), QStringLiteral("Block"), this);
        label->setBuddy(UpDownTestLink_[index]);
        layout->addWidget(label, index, 0);
        layout->addWidget(UpDownTestLink_[index], index, 1);
    }
    layout->addWidget(CommandTestLink_[kLinkBlocks], 0, 3);
    layout->addWidget(CommandTestLink_[kLinkInverted], 1, 3);
    layout->addWidget(CommandTestLink_[kUnlinkDown], 0, 4);
    layout->addWidget(CommandTestLink_[kUnlinkUp], 1, 4);
    layout->addWidget(chkTestUnlinkZero_, 2, 0, 1, 5, Qt::AlignRight);
    layout->setColumnStretch(2, 1);
}

void BlockLinkGroup::CommandTestLink_Click(int index) {
    if (!services_.link.CheckPort()) {
        return;
    }
    const int first = UpDownTestLink_[0]->Value();
    if (index == kLinkBlocks || index == kLinkInverted) {
        services_.link.Transact(
            LinkBlocks(first, UpDownTestLink_[1]->Value(),
                       index == kLinkBlocks ? BlockPolarity::Same : BlockPolarity::Inverted));
        return;
    }
    services_.link.Transact(
        UnlinkBlocks(first, index == kUnlinkDown ? UnlinkDirection::Down : UnlinkDirection::Up,
                     chkTestUnlinkZero_->isChecked()));
}

}  // namespace zelvar
