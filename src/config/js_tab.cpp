// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_tab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <utility>

#include "config/erase_question.h"
#include "config/js_report.h"
#include "config/selection.h"
#include "controls/arrange.h"
#include "controls/command_button.h"
#include "controls/fixed_pitch_font.h"
#include "controls/naming.h"
#include "protocol/point_settings.h"

namespace zelvar {

namespace {

/// In the order of their codes.
constexpr const char* kPowerCaptions[] = {"Normal", "Low", "High", "Unlimited"};

QPushButton* Button(const char* caption, const char* name, const char* accessibleName,
                    QWidget* parent) {
    return MakeCommandButton(ToQString(caption), ToQString(name), ToQString(accessibleName),
                             parent);
}

QLabel* LabelFor(QWidget* control, const char* caption, const char* name) {
    return CaptionLabel(ToQString(name), ToQString(caption), control->parentWidget(), control);
}

QPlainTextEdit* MakeReportField(QWidget* parent) {
    auto* field = Named(new QPlainTextEdit(parent), "textJSReport", "Configuration report");
    field->setReadOnly(true);
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field->setLineWrapMode(QPlainTextEdit::NoWrap);
    return field;
}

}  // namespace

JSTab::JSTab(const Services& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      commands_(services, {{}, [this] { return ChosenJsModules(SelectionOf(*cboJS_)); }}),
      cboJS_(Named(new DropDownList(this), "cboJS", "Point-motor module")),
      chkJSperm_(Named(new QCheckBox(QStringLiteral("Permanent"), this), "chkJSperm",
                       "Permanent settings of the point-motor modules")),
      updownJSdevice_(new SpinField(QStringLiteral("updownJSdevice"), QStringLiteral("txtJSdevice"),
                                    QStringLiteral("Device"), 0, kJsLastDevice, this)),
      updownJStime_(new SpinField(QStringLiteral("updownJStime"), QStringLiteral("txtJStime"),
                                  QStringLiteral("Time in sixtieths of a second"), 0,
                                  kJsLongestTime, this)),
      cmdTIME_(Button("Set Default Time", "cmdTIME", "Set the default time of the module", this)),
      cmdDeviceTime_(
          Button("Set Device Time", "cmdDeviceTime", "Set the time of the device", this)),
      cmdDevicePower_(
          Button("Set Device Pwr", "cmdDevicePower", "Set the power of the device", this)),
      cmdJSerase_(
          Button("Erase All", "cmdJSerase", "Erase all settings of the point-motor modules", this)),
      cmdGetJSConfig_(Button("Get Configuration", "cmdGetJSConfig",
                             "Get the configuration of the module", this)),
      cmdHideJSConfig_(
          Button("Hide Result", "cmdHideJSConfig", "Hide the configuration report", this)),
      textJSReport_(MakeReportField(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(LayOutTarget());
    auto* body = new QHBoxLayout;
    body->addLayout(LayOutSettings());
    body->addWidget(textJSReport_, 1);
    body->addStretch();
    layout->addLayout(body, 1);
    ShowJSReportControls(false);
    ConnectControls();
}

QLayout* JSTab::LayOutTarget() {
    cboJS_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboJS_->setMinimumContentsLength(8);
    auto* target = new QHBoxLayout;
    target->addWidget(LabelFor(cboJS_, "Module", "lblJS"));
    target->addWidget(cboJS_);
    target->addWidget(chkJSperm_);
    target->addWidget(cmdGetJSConfig_);
    target->addWidget(cmdHideJSConfig_);
    target->addStretch();
    target->addWidget(cmdJSerase_);
    return target;
}

QLayout* JSTab::LayOutSettings() {
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(LabelFor(updownJStime_, "Time (1/60s)", "lblJStime"), 0, 0);
    grid->addWidget(updownJStime_, 0, 1);
    grid->addWidget(cmdTIME_, 0, 2);
    grid->addWidget(LabelFor(updownJSdevice_, "Device", "lblJSdevice"), 1, 0);
    grid->addWidget(updownJSdevice_, 1, 1);
    grid->addWidget(cmdDeviceTime_, 1, 2);
    grid->addLayout(LayOutPower(), 2, 0, 1, 2);
    grid->addWidget(cmdDevicePower_, 2, 2, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->addWidget(frame);
    column->addStretch(1);
    // The order of the controls in the form, not that of their creation.
    SetTabOrder({updownJStime_, cmdTIME_, updownJSdevice_, cmdDeviceTime_,
                 optJSpower_->buttons().constFirst()});
    SetTabOrder({optJSpower_->buttons().constLast(), cmdDevicePower_});
    return column;
}

QLayout* JSTab::LayOutPower() {
    auto* layout = new QVBoxLayout;
    int code = 0;
    for (const char* power : kPowerCaptions) {
        const QString caption = ToQString(power);
        auto* button = Named(new QRadioButton(caption, this), IndexedName("optJSpower", code),
                             QStringLiteral("Power: ") + caption);
        optJSpower_->addButton(button, code++);
        layout->addWidget(button);
    }
    optJSpower_->button(0)->setChecked(true);
    return layout;
}

void JSTab::ConnectControls() {
    SendOnClick(cmdTIME_, {updownJStime_},
                [this] { return JsDefaultTime(chkJSperm_->isChecked(), updownJStime_->value()); });
    SendOnClick(cmdDeviceTime_, {updownJStime_, updownJSdevice_}, [this] {
        return JsDeviceTime(chkJSperm_->isChecked(), updownJSdevice_->value(),
                            updownJStime_->value());
    });
    SendOnClick(cmdDevicePower_, {updownJSdevice_}, [this] {
        return JsDevicePower(chkJSperm_->isChecked(), updownJSdevice_->value(),
                             optJSpower_->checkedId());
    });
    connect(cmdJSerase_, &QPushButton::clicked, this, &JSTab::cmdJSerase_Click);
    connect(cmdGetJSConfig_, &QPushButton::clicked, this, &JSTab::cmdGetJSConfig_Click);
    connect(cmdHideJSConfig_, &QPushButton::clicked, this, &JSTab::cmdHideJSConfig_Click);
    connect(cboJS_, &DropDownList::chosen, this, &JSTab::cboJS_Click);
}

void JSTab::SendOnClick(QPushButton* button, std::vector<SpinField*> fields,
                        std::function<ModuleCommand()> command) {
    connect(button, &QPushButton::clicked, this,
            [this, fields = std::move(fields), command = std::move(command)] {
                for (SpinField* field : fields) {
                    field->clamp();
                }
                commands_.SendModuleCommand(command());
            });
}

void JSTab::Fill(const SelectionList& list) {
    FillSelection(*cboJS_, list);
    JsSelectionChanged();
}

void JSTab::cboJS_Click() {
    JsSelectionChanged();
}

void JSTab::JsSelectionChanged() {
    ShowJSReportControls(cboJS_->SelectedData(kAllJs) != kAllJs);
}

void JSTab::ShowJSReportControls(bool canGet) {
    cmdGetJSConfig_->setVisible(canGet);
    ShowReport(false);
}

void JSTab::ShowReport(bool shown) {
    if (shown) {
        // Set no earlier: finding the font takes longer than building the whole tab.
        textJSReport_->setFont(FixedPitchFont());
    }
    cmdHideJSConfig_->setVisible(shown);
    textJSReport_->setVisible(shown);
}

void JSTab::cmdJSerase_Click() {
    if (AgreesToErase(services_.messageBox, "JS70-units")) {
        commands_.SendModuleCommand(kJsErase);
    }
}

void JSTab::cmdGetJSConfig_Click() {
    const ModuleSelection selection = SelectionOf(*cboJS_);
    if (!selection.data || *selection.data == kAllJs) {
        return;
    }
    const std::optional<JsConfiguration> configuration =
        JsReportRequest(services_).Run(*selection.data);
    if (configuration) {
        textJSReport_->setPlainText(ToQString(FormatJsReport(*configuration)));
    }
    // An older report must not look like the one that did not come.
    ShowReport(configuration.has_value());
}

void JSTab::cmdHideJSConfig_Click() {
    ShowReport(false);
}

}  // namespace zelvar
