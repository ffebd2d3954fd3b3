// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/dlg_zelvar_status44.h"

#include <QGridLayout>

#include <cstddef>

#include "controls/arrange.h"
#include "controls/naming.h"

namespace zelvar {

namespace {

/// Geometry in twips.
struct FrameRow {
    const char* caption;
    int channel;
    int left, top, width, height;
};

// Channel 1 stands to the left of channel 0 in each pair.
constexpr std::array<FrameRow, 6> kFrames{{
    {"JS-Ch0", 0, 1920, 3000, 1575, 3615},
    {"JS-Ch1", 1, 240, 3000, 1575, 3615},
    {"VD-Ch0", 0, 7560, 120, 3855, 6495},
    {"VD-Ch1", 1, 3600, 120, 3855, 6495},
    {"YR-Ch0", 0, 13200, 120, 1695, 6495},
    {"YR-Ch1", 1, 11520, 120, 1575, 6495},
}};

constexpr int kJsFrames = 0;
constexpr int kVDFrames = 2;
constexpr int kYRFrames = 4;
constexpr int kYRChannel1 = 5;

constexpr int kWidthWithChannel0 = 15030;
constexpr int kWidthWithoutChannel0 = 9400;
constexpr int kHeight = 6795;
/// Where "YR-Ch1" stands when "VD-Ch0" leaves its place.
constexpr int kYRLeftWithoutChannel0 = 7560;

constexpr int kJsPerChannel = 8;
/// Small enough for 16 rows and six columns in a frame of fixed size.
constexpr int kRowFontPixels = 11;

const DlgZelvarStatus44::ModuleFrames kPointMotorModules{
    kJsFrames,
    "Point-motor",
    kJsPerChannel,
    {{{"lblJSmodule", "#", 1}, {"lblJSstatus", "Status", 1}, {"lblJSversion", "Version", 1}}},
    "lblJS",
    "txtJSstatus",
    "txtJSver"};

const DlgZelvarStatus44::ModuleFrames kSignalControllers{
    kYRFrames,
    "Signal",
    kModulesPerChannel,
    {{{"lblYRmodule", "#", 1}, {"lblYRstatus", "Status", 1}, {"lblYRversion", "Version", 1}}},
    "lblYR",
    "txtYRstatus",
    "txtYRver"};

/// The frame of a channel: the pairs list channel 0 first.
int FrameOf(int firstOfPair, int channel) {
    return firstOfPair + channel;
}

QString ModuleInWords(const char* family, int channel, int module) {
    return QStringLiteral("%1 module %2 on channel %3")
        .arg(ToQString(family))
        .arg(module)
        .arg(channel);
}

}  // namespace

DlgZelvarStatus44::DlgZelvarStatus44()
    : SecondaryWindow(QStringLiteral("dlgZelvarStatus44"),
                      QStringLiteral("ZelvarConfig - Zelvar Status")) {
    BuildSystem();
    BuildFrames();
    for (const int channel : {0, 1}) {
        BuildModules(kPointMotorModules, channel, txtJSstatus_, txtJSver_);
        BuildTractionModules(channel);
        BuildModules(kSignalControllers, channel, txtYRstatus_, txtYRver_);
    }
    // The box starts unticked while all frames show; the layout follows it from its first click.
    Resize(kWidthWithChannel0);
}

void DlgZelvarStatus44::BuildSystem() {
    constexpr int kLeft = 240;
    constexpr int kTop = 120;
    constexpr int kWidth = 3255;
    auto* panel = new QWidget(this);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    system_ = BuildSystemFields(panel, *grid);
    chkShowChannel0_ = Named(new QCheckBox(QStringLiteral("Show Channel 0"), panel),
                             "chkShowChannel0", "Show channel 0");
    grid->addWidget(chkShowChannel0_, 3, 0, 1, 2);
    panel->setGeometry(Pixels(kLeft), Pixels(kTop), Pixels(kWidth),
                       Pixels(kFrames[0].top - 2 * kTop));
    connect(chkShowChannel0_, &QCheckBox::toggled, this,
            [this](bool checked) { chkShowChannel0_Click(checked); });
}

void DlgZelvarStatus44::BuildFrames() {
    for (std::size_t i = 0; i < kFrames.size(); ++i) {
        const FrameRow& row = kFrames[i];
        const QString caption = ToQString(row.caption);
        auto* frame = Named(new QGroupBox(caption, this),
                            IndexedName("frmStatus", static_cast<int>(i)), caption);
        frame->setGeometry(Pixels(row.left), Pixels(row.top), Pixels(row.width),
                           Pixels(row.height));
        QFont font = frame->font();
        font.setPixelSize(kRowFontPixels);
        frame->setFont(font);
        frmStatus_[i] = frame;
    }
}

QGridLayout* DlgZelvarStatus44::NewRows(int frame, int columns) {
    auto* grid = new QGridLayout(frmStatus_[frame]);
    grid->setContentsMargins(2, 2, 2, 3);
    grid->setSpacing(1);
    grid->addWidget(
        CaptionLabel(IndexedName("lblSSchannel", frame),
                     QStringLiteral("Channel %1").arg(kFrames[frame].channel), frmStatus_[frame]),
        0, 0, 1, columns);
    return grid;
}

QLineEdit* DlgZelvarStatus44::NewField(const char* name, int index, const QString& accessibleName,
                                       QGroupBox* frame) {
    QLineEdit* field = NewDisplayField(IndexedName(name, index), accessibleName, frame);
    field->setFrame(false);
    field->setTextMargins(0, 0, 0, 0);
    field->setMinimumWidth(1);
    // The rows share the height of the frame; the heads do not grow.
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return field;
}

void DlgZelvarStatus44::AddNumber(QGridLayout* grid, int row, const char* name, int index,
                                  int module) {
    QLabel* label =
        CaptionLabel(IndexedName(name, index), QString::number(module), grid->parentWidget());
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setContentsMargins(0, 0, 2, 0);
    if (index != module) {
        label->setToolTip(QStringLiteral("Number %1 of the system").arg(index));
    }
    grid->addWidget(label, row, 0);
}

void DlgZelvarStatus44::AddHeads(QGridLayout* grid, int channel, std::span<const Head> heads) {
    int column = 0;
    for (const Head& head : heads) {
        QLabel* label = CaptionLabel(IndexedName(head.name, channel), ToQString(head.caption),
                                     grid->parentWidget());
        if (column == 0) {
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            label->setContentsMargins(0, 0, 2, 0);
        }
        grid->addWidget(label, 1, column, 1, head.columns);
        column += head.columns;
    }
}

void DlgZelvarStatus44::BuildTractionModules(int channel) {
    const int frameIndex = FrameOf(kVDFrames, channel);
    QGroupBox* frame = frmStatus_[frameIndex];
    QGridLayout* grid = NewRows(frameIndex, 6);
    constexpr Head kHeads[] = {{"lblVDmodule", "#", 1},
                               {"lblVDtype", "Type", 1},
                               {"lblVDprimary", "Primary", 2},
                               {"lblVDsecondary", "Secondary", 2}};
    AddHeads(grid, channel, kHeads);
    for (int module = 0; module < kModulesPerChannel; ++module) {
        const int row = module + 2;
        const int line = channel * kModulesPerChannel + module;
        const QString words = ModuleInWords("Traction", channel, module);
        AddNumber(grid, row, "lblVD", line, module);
        QLineEdit* type = NewField("txtVDtype", line, QStringLiteral("Type of ") + words, frame);
        grid->addWidget(type, row, 1);
        txtVDtype_[line] = type;
        for (const int unit : {0, 1}) {
            const int index = line + unit * kVDPrimaryLines;
            const QString unitWords = (unit == 0 ? QStringLiteral("primary unit of ")
                                                 : QStringLiteral("secondary unit of ")) +
                                      words;
            QLineEdit* state =
                NewField("txtVDstatus", index, QStringLiteral("Status of ") + unitWords, frame);
            QLineEdit* version =
                NewField("txtVDversion", index, QStringLiteral("Version of ") + unitWords, frame);
            grid->addWidget(state, row, 2 + 2 * unit);
            grid->addWidget(version, row, 3 + 2 * unit);
            txtVDstatus_[index] = state;
            txtVDversion_[index] = version;
        }
    }
    for (int column = 1; column < 6; ++column) {
        grid->setColumnStretch(column, 1);
    }
}

void DlgZelvarStatus44::BuildModules(const ModuleFrames& family, int channel,
                                     std::span<QLineEdit*> states, std::span<QLineEdit*> versions) {
    const int frameIndex = FrameOf(family.firstFrame, channel);
    QGroupBox* frame = frmStatus_[frameIndex];
    QGridLayout* grid = NewRows(frameIndex, 3);
    AddHeads(grid, channel, family.heads);
    for (int module = 0; module < family.perChannel; ++module) {
        const int row = module + 2;
        const int index = channel * family.perChannel + module;
        const QString words = ModuleInWords(family.words, channel, module);
        AddNumber(grid, row, family.number, index, module);
        states[index] = NewField(family.status, index, QStringLiteral("Status of ") + words, frame);
        versions[index] =
            NewField(family.version, index, QStringLiteral("Version of ") + words, frame);
        grid->addWidget(states[index], row, 1);
        grid->addWidget(versions[index], row, 2);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
}

void DlgZelvarStatus44::Show(const SystemStatus& status) {
    ShowSystemFields(system_, status);
    for (std::size_t m = 0; m < txtVDtype_.size(); ++m) {
        ShowInField(*txtVDtype_[m], ToQString(VDTypeText(status.vdTypes[m])));
    }
    for (std::size_t i = 0; i < txtVDstatus_.size(); ++i) {
        ShowInField(*txtVDstatus_[i], ToQString(ModuleStateText(status.vd[i].state)));
        ShowInField(*txtVDversion_[i], ToQString(VersionText(status.vd[i])));
    }
    for (std::size_t j = 0; j < txtJSstatus_.size(); ++j) {
        ShowInField(*txtJSstatus_[j], ToQString(ModuleStateText(status.js[j].state)));
        ShowInField(*txtJSver_[j], ToQString(JsVersionText(status.js[j])));
    }
    for (std::size_t k = 0; k < txtYRstatus_.size(); ++k) {
        ShowInField(*txtYRstatus_[k], ToQString(ModuleStateText(status.yr[k].state)));
        ShowInField(*txtYRver_[k], ToQString(VersionText(status.yr[k])));
    }
}

void DlgZelvarStatus44::chkShowChannel0_Click(bool checked) {
    for (std::size_t i = 0; i < kFrames.size(); ++i) {
        if (kFrames[i].channel == 0) {
            frmStatus_[i]->setVisible(checked);
        }
    }
    QGroupBox* signals1 = frmStatus_[kYRChannel1];
    signals1->move(Pixels(checked ? kFrames[kYRChannel1].left : kYRLeftWithoutChannel0),
                   signals1->y());
    Resize(checked ? kWidthWithChannel0 : kWidthWithoutChannel0);
}

void DlgZelvarStatus44::Resize(int widthInTwips) {
    setFixedSize(Pixels(widthInTwips), Pixels(kHeight));
}

}  // namespace zelvar
