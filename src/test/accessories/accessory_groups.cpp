// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/accessory_groups.h"

#include <QGridLayout>

#include <array>
#include <utility>

#include "controls/naming.h"
#include "protocol/accessories.h"

namespace zelvar {

namespace {

struct FieldRow {
    const char* spin;
    const char* field;
    const char* caption;
    const char* inWords;
    int maximum;
};

/// The label array of a group and the button below its fields.
struct GroupNames {
    const char* labels;
    const char* button;
    const char* caption;
    const char* inWords;
};

constexpr FieldRow kSignalModule{"UpDownTestYR70module", "txtTestYR70module", "YR70 Module",
                                 "YR70 module", 31};
constexpr FieldRow kSignalPin{"UpDownTestYR70pin", "txtTestYR70pin", "Pin", "Pin of the YR70", 127};
constexpr FieldRow kSignalAspect{"UpDownTestYR70aspect", "txtTestYR70aspect", "Aspect",
                                 "Signal aspect", 11};
constexpr GroupNames kSignalNames{"lblTestYR70", "cmdTestYR70", "Set Aspect",
                                  "Set the signal aspect"};

constexpr FieldRow kOutputInstruction{"UpDownTestGW70instruction", "txtTestGW70instruction",
                                      "GW70 Instruction", "GW70 instruction", 63};
constexpr FieldRow kOutputNumber{"UpDownTestGW70output", "txtTestGW70output", "Output",
                                 "Output of the GW70", 511};
constexpr FieldRow kOutputParameter{"UpDownTestGW70parameter", "txtTestGW70parameter", "Param",
                                    "Parameter of the GW70 instruction", 127};
constexpr GroupNames kOutputNames{"lblTestGW70", "cmdTestGW70", "Set GW70",
                                  "Give the instruction to the GW70"};

SpinField* Field(const FieldRow& row, QWidget* parent) {
    return ClampedField(Text(row.spin), Text(row.field), Text(row.inWords), 0, row.maximum, parent);
}

/// Fields with their captions side by side. @return the button below them
QPushButton* LayOutGroup(QWidget* group, const GroupNames& names,
                         const std::array<std::pair<const FieldRow*, SpinField*>, 3>& fields) {
    auto* layout = new QGridLayout(group);
    int column = 0;
    for (const auto& [row, field] : fields) {
        auto* label = CaptionLabel(IndexedName(names.labels, column), Text(row->caption), group);
        label->setBuddy(field);
        layout->addWidget(label, 0, column);
        layout->addWidget(field, 1, column, Qt::AlignLeft);
        ++column;
    }
    layout->setColumnStretch(column, 1);
    auto* button = Named(new QPushButton(Text(names.caption), group), names.button, names.inWords);
    layout->addWidget(button, 1, column, Qt::AlignRight);
    return button;
}

}  // namespace

SignalGroup::SignalGroup(const Services& services, QWidget* parent)
    : QGroupBox(QStringLiteral("Signals (YR70)"), parent),
      services_(services),
      UpDownTestYR70module_(Field(kSignalModule, this)),
      UpDownTestYR70pin_(Field(kSignalPin, this)),
      UpDownTestYR70aspect_(Field(kSignalAspect, this)) {
    const QPushButton* button = LayOutGroup(this, kSignalNames,
                                            {{{&kSignalModule, UpDownTestYR70module_},
                                              {&kSignalPin, UpDownTestYR70pin_},
                                              {&kSignalAspect, UpDownTestYR70aspect_}}});
    connect(button, &QPushButton::clicked, this, [this] { cmdTestYR70_Click(); });
}

void SignalGroup::cmdTestYR70_Click() {
    if (services_.link.CheckPort()) {
        services_.link.Transact(SetSignalAspect(UpDownTestYR70module_->Value(),
                                                UpDownTestYR70pin_->Value(),
                                                UpDownTestYR70aspect_->Value()));
    }
}

OutputGroup::OutputGroup(const Services& services, QWidget* parent)
    : QGroupBox(QStringLiteral("Outputs (GW70)"), parent),
      services_(services),
      UpDownTestGW70instruction_(Field(kOutputInstruction, this)),
      UpDownTestGW70output_(Field(kOutputNumber, this)),
      UpDownTestGW70parameter_(Field(kOutputParameter, this)) {
    const QPushButton* button = LayOutGroup(this, kOutputNames,
                                            {{{&kOutputInstruction, UpDownTestGW70instruction_},
                                              {&kOutputNumber, UpDownTestGW70output_},
                                              {&kOutputParameter, UpDownTestGW70parameter_}}});
    connect(button, &QPushButton::clicked, this, [this] { cmdTestGW70_Click(); });
}

void OutputGroup::cmdTestGW70_Click() {
    if (services_.link.CheckPort()) {
        services_.link.Transact(SetOutput(UpDownTestGW70output_->Value(),
                                          UpDownTestGW70instruction_->Value(),
                                          UpDownTestGW70parameter_->Value()));
    }
}

}  // namespace zelvar
