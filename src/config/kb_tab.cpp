// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/kb_tab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <cstddef>

#include "controls/command_button.h"
#include "controls/lost_focus.h"
#include "controls/naming.h"
#include "controls/palette.h"

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
    const char* inWords;
};

/// From top to bottom. The button that some units do not have stands last, so that it leaves no
/// hole.
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
    // Next to the Permanent box, which counts for it.
    always->addWidget(Build64DMFrame());
    always->addWidget(BuildOptionsFrame());
    always->addWidget(BuildTransparentFrame());
    always->addStretch(1);
    // The frame that some units do not have stands last, so that it leaves no hole.
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
        const QString caption = Text(kSwitches[i].caption);
        chkKBEconfig_[i] = Named(new QCheckBox(caption, frame),
                                 IndexedName("chkKBEconfig", static_cast<int>(i)), caption);
        chkKBEconfig_[i]->setToolTip(Text(kSwitches[i].tooltip));
        layout->addWidget(chkKBEconfig_[i]);
    }
    auto* buttons = new QHBoxLayout;
    for (std::size_t i = 0; i < cmdConfig_.size(); ++i) {
        const QString caption = Text(kConfigCaptions[i]);
        cmdConfig_[i] = MakeCommandButton(
            caption, IndexedName("cmdConfig", static_cast<int>(i)),
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
        const QString caption = Text(kOptions[static_cast<std::size_t>(i)]);
        auto* box = Named(new QCheckBox(caption, frame), IndexedName("chkKBEoptions", i),
                          QStringLiteral("Option %1: %2").arg(i).arg(caption));
        chkKBEoptions_[static_cast<std::size_t>(i)] = box;
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
        chkJSdevicemode_[static_cast<std::size_t>(i)] = box;
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
        QPushButton* button = MakeCommandButton(
            Text(mode.caption), IndexedName("cmdTM", mode.index), Text(mode.inWords), frame);
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
        layout->addWidget(button);
        cmdTM_[static_cast<std::size_t>(mode.index)] = button;
    }
    return frame;
}

void KBTab::ConnectControls() {
    for (int i = 0; i < static_cast<int>(cmdConfig_.size()); ++i) {
        QPushButton* button = cmdConfig_[static_cast<std::size_t>(i)];
        connect(button, &QPushButton::clicked, this, [this, i] { cmdConfig_Click(i); });
        OnLostFocus(button, [this] { cmdConfig_LostFocus(); });
    }
    for (int i = 0; i < static_cast<int>(cmdTM_.size()); ++i) {
        connect(cmdTM_[static_cast<std::size_t>(i)], &QPushButton::clicked, this,
                [this, i] { cmdTM_Click(i); });
    }
    connect(cmdOptions_, &QPushButton::clicked, this, &KBTab::cmdOptions_Click);
    connect(cmdJS70dm_, &QPushButton::clicked, this, &KBTab::cmdJS70dm_Click);
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
    // A unit in transparent mode no longer answers: the box for that is the confirmation.
    if (services_.link.Transact(TransparentModeCommand(index))) {
        services_.link.Transact(kEmptyTransaction, kTransparentText);
    }
}

}  // namespace zelvar
