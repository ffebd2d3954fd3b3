// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/kb_tab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <cstddef>

#include "config/transparent_text.h"
#include "controls/arrange.h"
#include "controls/command_button.h"
#include "controls/lost_focus.h"
#include "controls/naming.h"
#include "controls/palette.h"
#include "status/central_unit.h"

namespace zelvar {

namespace {

struct Switch {
    const char* caption;
    const char* tooltip;
    /// Shown only for units with the full set.
    bool fullOnly;
};

constexpr std::array<Switch, kKBSwitches> kSwitches{{
    {"Channel 1 speed 38k4", "Set channel 1 to 38k4 (standard = 19k2)", true},
    {"Channel 0 speed 38k4", "Set channel 0 to 38k4 (standard = 19k2)", true},
    {"Channel 0 active (disables serial host comm on KB-E!)", "Use Channel 0 Downstream", true},
    {"GW70 Native Addressing", "Set GW70 Native Addressing", true},
    {"GW70 Retransmission Option", "Use GW70 Reliable Transmission", false},
    {"JS70 use 64 devices per module", "Enable 64 devices per JS70", true},
    {"DCC Fixed Decoder Address (3)", "Fix all DCC locomotive addresses to 3", true},
    {"Not used", "", false},
}};

constexpr std::array<const char*, kKBSwitches> kOptions{"NU",     "Ret.Report", "NU",      "NU",
                                                        "VD-Ch1", "VD-Ch0",     "Debug.M", "NU"};

constexpr std::array<const char*, 2> kConfigCaptions{"Set KB-x Config", "Get KB-x Config"};

struct TransparentMode {
    int index;
    const char* caption;
    const char* accessibleName;
};

/// From top to bottom. The button that some units do not have comes last, so that it leaves no gap.
constexpr std::array<TransparentMode, kTransparentModes> kTransparent{{
    {0, "Channel 0 Transp. Mode", "Transparent mode of channel 0"},
    {2, "Bootloader Transp. Mode", "Transparent mode of the boot loader"},
    {1, "Channel 1 Transp. Mode", "Transparent mode of channel 1"},
}};

constexpr int kBoxColumns = 4;

QFrame* Panel(QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

template <typename Boxes>
KBSwitches TickedOf(const Boxes& boxes) {
    KBSwitches ticked{};
    for (std::size_t i = 0; i < ticked.size(); ++i) {
        ticked[i] = boxes[i]->isChecked();
    }
    return ticked;
}

}  // namespace

KBTab::KBTab(const Services& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      commands_(services),
      lblKBtype_(Named(new QLabel(QStringLiteral("?"), this), "lblKBtype", "Central unit type")),
      chkKBperm_(Named(new QCheckBox(QStringLiteral("Permanent"), this), "chkKBperm",
                       "Permanent settings of the central unit")) {
    lblKBtype_->setVisible(false);
    auto* layout = new QVBoxLayout(this);
    auto* head = new QHBoxLayout;
    head->addWidget(chkKBperm_);
    head->addWidget(lblKBtype_);
    head->addStretch();
    layout->addLayout(head);
    auto* body = new QHBoxLayout;
    auto* always = new QVBoxLayout;
    // Next to the Permanent box, which applies to it.
    always->addWidget(Build64DMFrame());
    always->addWidget(BuildOptionsFrame());
    always->addWidget(BuildTransparentFrame());
    always->addStretch(1);
    // The frame that some units do not have comes last, so that it leaves no gap.
    auto* configuration = new QVBoxLayout;
    frmConfig_ = BuildConfigFrame();
    configuration->addWidget(frmConfig_);
    configuration->addStretch(1);
    body->addLayout(always);
    body->addLayout(configuration);
    body->addStretch();
    layout->addLayout(body, 1);
    ConnectControls();
}

QFrame* KBTab::BuildConfigFrame() {
    auto* frame = Named(Panel(this), "frmConfig", "Central unit configuration");
    auto* layout = new QVBoxLayout(frame);
    for (std::size_t i = 0; i < kSwitches.size(); ++i) {
        const QString caption = ToQString(kSwitches[i].caption);
        chkKBEconfig_[i] =
            Named(new QCheckBox(caption, frame), IndexedName("chkKBEconfig", i), caption);
        chkKBEconfig_[i]->setToolTip(ToQString(kSwitches[i].tooltip));
        layout->addWidget(chkKBEconfig_[i]);
    }
    auto* buttons = new QHBoxLayout;
    for (std::size_t i = 0; i < cmdConfig_.size(); ++i) {
        const QString caption = ToQString(kConfigCaptions[i]);
        cmdConfig_[i] = MakeCommandButton(
            caption, IndexedName("cmdConfig", i),
            caption + QStringLiteral(": configuration of the central unit"), frame);
        buttons->addWidget(cmdConfig_[i]);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    return frame;
}

QFrame* KBTab::BuildOptionsFrame() {
    QFrame* frame = Panel(this);
    auto* layout = new QGridLayout(frame);
    for (int i = 0; i < kKBSwitches; ++i) {
        const QString caption = ToQString(kOptions[i]);
        auto* box = Named(new QCheckBox(caption, frame), IndexedName("chkKBEoptions", i),
                          QStringLiteral("Option %1: %2").arg(i).arg(caption));
        chkKBEoptions_[i] = box;
        layout->addWidget(box, i / kBoxColumns, i % kBoxColumns);
    }
    cmdOptions_ = MakeCommandButton(QStringLiteral("KBE-Options"), QStringLiteral("cmdOptions"),
                                    QStringLiteral("Set the options of the central unit"), frame);
    layout->addWidget(cmdOptions_, 2, 0, 1, kBoxColumns, Qt::AlignLeft);
    return frame;
}

QFrame* KBTab::Build64DMFrame() {
    auto* frame = Named(Panel(this), "frm64DM", "64-device mode of the point-motor modules");
    auto* layout = new QGridLayout(frame);
    for (int i = 0; i < kKBSwitches; ++i) {
        auto* box = Named(new QCheckBox(QStringLiteral("#%1").arg(i), frame),
                          IndexedName("chkJSdevicemode", i),
                          QStringLiteral("64-device mode, number %1").arg(i));
        chkJSdevicemode_[i] = box;
        layout->addWidget(box, i / kBoxColumns, i % kBoxColumns);
    }
    cmdJS70dm_ =
        MakeCommandButton(QStringLiteral("JS70 - 64 DM"), QStringLiteral("cmdJS70dm"),
                          QStringLiteral("Set the 64-device mode of the JS70 modules"), frame);
    layout->addWidget(cmdJS70dm_, 2, 0, 1, kBoxColumns, Qt::AlignLeft);
    return frame;
}

QFrame* KBTab::BuildTransparentFrame() {
    QFrame* frame = Panel(this);
    auto* layout = new QVBoxLayout(frame);
    for (const TransparentMode& mode : kTransparent) {
        QPushButton* button =
            MakeCommandButton(ToQString(mode.caption), IndexedName("cmdTM", mode.index),
                              ToQString(mode.accessibleName), frame);
        KeepPlaceWhenHidden(button);
        layout->addWidget(button);
        cmdTM_[mode.index] = button;
    }
    return frame;
}

void KBTab::ConnectControls() {
    for (int index = 0; index < static_cast<int>(cmdConfig_.size()); ++index) {
        connect(cmdConfig_[index], &QPushButton::clicked, this,
                [this, index] { cmdConfig_Click(index); });
        OnLostFocus(cmdConfig_[index], [this] { cmdConfig_LostFocus(); });
    }
    for (int index = 0; index < static_cast<int>(cmdTM_.size()); ++index) {
        connect(cmdTM_[index], &QPushButton::clicked, this, [this, index] { cmdTM_Click(index); });
    }
    connect(cmdOptions_, &QPushButton::clicked, this, &KBTab::cmdOptions_Click);
    connect(cmdJS70dm_, &QPushButton::clicked, this, &KBTab::cmdJS70dm_Click);
}

void KBTab::ShowUnit(const CentralUnit& unit) {
    lblKBtype_->setText(ToQString(CentralUnitCaption(unit)));
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

void KBTab::ShowKBConfigReply(const Reply& reply) {
    const KBSwitches switches = ReadKBConfigReply(reply);
    SetGroundColour(frmConfig_, kColourGreen);
    for (std::size_t i = 0; i < switches.size(); ++i) {
        chkKBEconfig_[i]->setChecked(switches[i]);
        SetGroundColour(chkKBEconfig_[i], kColourGreen);
    }
}

void KBTab::cmdConfig_Click(int index) {
    commands_.SendModuleCommand(
        KBConfigCommand(index, chkKBperm_->isChecked(), TickedOf(chkKBEconfig_)));
}

void KBTab::cmdConfig_LostFocus() {
    RestoreSystemColour(frmConfig_);
    for (QCheckBox* box : chkKBEconfig_) {
        RestoreSystemColour(box);
    }
}

void KBTab::cmdOptions_Click() {
    commands_.SendModuleCommand(KBOptionsCommand(TickedOf(chkKBEoptions_)));
}

void KBTab::cmdJS70dm_Click() {
    commands_.SendModuleCommand(
        Js64DeviceModeCommand(chkKBperm_->isChecked(), TickedOf(chkJSdevicemode_)));
}

void KBTab::cmdTM_Click(int index) {
    if (!services_.link.CheckPort()) {
        return;
    }
    // A unit in transparent mode no longer answers: the message about that is the confirmation.
    if (services_.link.Transact(TransparentModeCommand(index))) {
        services_.link.Transact(kEmptyTransaction, kTransparentText);
    }
}

}  // namespace zelvar
