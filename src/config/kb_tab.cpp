// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/kb_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <cstddef>

#include "controls/naming.h"

namespace zelvar {

namespace {

struct Switch {
    const char* caption;
    const char* tooltip;
    /// Shown only for units with the full set.
    bool fullOnly;
};

constexpr std::array<Switch, 8> kSwitches{{
    {"Channel 1 speed 38k4", "Set channel 1 to 38k4 (standard = 19k2)", true},
    {"Channel 0 speed 38k4", "Set channel 0 to 38k4 (standard = 19k2)", true},
    {"Channel 0 active (disables serial host comm on KB-E!)", "Use Channel 0 Downstream", true},
    {"GW70 Native Addressing", "Set GW70 Native Addressing", true},
    {"GW70 Retransmission Option", "Use GW70 Reliable Transmission", false},
    {"JS70 use 64 devices per module", "Enable 64 devices per JS70", true},
    {"DCC Fixed Decoder Address (3)", "Fix all DCC locomotive addresses to 3", true},
    {"Not used", "", false},
}};

constexpr std::array<const char*, 2> kConfigCaptions{"Set KB-x Config", "Get KB-x Config"};
constexpr std::array<const char*, 3> kTransparentCaptions{
    "Channel 0 Transp. Mode", "Channel 1 Transp. Mode", "Bootloader Transp. Mode"};

}  // namespace

KBTab::KBTab(const Services& /*services*/, QWidget* parent)
    : QWidget(parent),
      lblKBtype_(Named(new QLabel(QStringLiteral("?"), this), "lblKBtype", "Central unit type")) {
    frmConfig_ = BuildConfigFrame();
    lblKBtype_->setVisible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblKBtype_);
    layout->addWidget(frmConfig_);
    auto* transparent = new QHBoxLayout;
    for (std::size_t i = 0; i < cmdTM_.size(); ++i) {
        const QString caption = Text(kTransparentCaptions[i]);
        cmdTM_[i] = Named(new QPushButton(caption, this), IndexedName("cmdTM", static_cast<int>(i)),
                          caption);
        transparent->addWidget(cmdTM_[i]);
    }
    transparent->addStretch();
    layout->addLayout(transparent);
    layout->addStretch();
}

QFrame* KBTab::BuildConfigFrame() {
    auto* frame = Named(new QFrame(this), "frmConfig", "Central unit configuration");
    frame->setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(frame);
    for (std::size_t i = 0; i < kSwitches.size(); ++i) {
        const QString caption = Text(kSwitches[i].caption);
        chkKBEconfig_[i] = Named(new QCheckBox(caption, frame),
                                 IndexedName("chkKBEconfig", static_cast<int>(i)), caption);
        chkKBEconfig_[i]->setToolTip(Text(kSwitches[i].tooltip));
        layout->addWidget(chkKBEconfig_[i]);
    }
    auto* buttons = new QHBoxLayout;
    for (std::size_t i = 0; i < cmdConfig_.size(); ++i) {
        const QString caption = Text(kConfigCaptions[i]);
        cmdConfig_[i] = Named(new QPushButton(caption, frame),
                              IndexedName("cmdConfig", static_cast<int>(i)), caption);
        buttons->addWidget(cmdConfig_[i]);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    return frame;
}

void KBTab::ShowUnit(const CentralUnit& unit) {
    lblKBtype_->setText(Text(CentralUnitCaption(unit)));
    lblKBtype_->setVisible(true);
    ShowKBConfigView(KBConfigViewOf(unit));
}

void KBTab::ShowKBConfigView(const KBConfigView& view) {
    frmConfig_->setVisible(view.showFrame);
    for (std::size_t i = 0; i < kSwitches.size(); ++i) {
        if (kSwitches[i].fullOnly) {
            chkKBEconfig_[i]->setVisible(view.full);
        }
    }
    cmdConfig_[1]->setVisible(view.full);
    cmdTM_[1]->setVisible(view.full);
}

}  // namespace zelvar
