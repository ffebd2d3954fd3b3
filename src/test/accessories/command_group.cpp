// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/command_group.h"

#include <QGridLayout>

#include <utility>

#include "controls/command_button.h"
#include "controls/naming.h"

namespace zelvar {

CommandGroup::CommandGroup(const QString& title, Link& link, QWidget* parent)
    : QGroupBox(title, parent), link_(link) {}

CommandGroup::Field CommandGroup::AddField(const CommandField& row) {
    QLabel* label = CaptionLabel(row.label, row.caption, this);
    SpinField* field =
        ClampedField(row.spin, row.field, row.accessibleName, 0, row.maximum, this, label);
    return fields_.emplace_back(Field{label, field});
}

QPushButton* CommandGroup::AddButton(const QString& name, const QString& caption,
                                     const QString& accessibleName,
                                     std::function<Command()> command) {
    QPushButton* button = Named(new QPushButton(caption, this), name, accessibleName);
    SendOnClick(button, link_, std::move(command));
    return buttons_.emplace_back(button);
}

void CommandGroup::LayOutInColumns() {
    auto* layout = new QGridLayout(this);
    int column = 0;
    for (const Field& field : fields_) {
        layout->addWidget(field.label, 0, column);
        layout->addWidget(field.field, 1, column, Qt::AlignLeft);
        ++column;
    }
    layout->setColumnStretch(column, 1);
    layout->addWidget(buttons_.front(), 1, column, Qt::AlignRight);
}

}  // namespace zelvar
