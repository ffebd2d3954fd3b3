// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/status_fields.h"

#include <QGridLayout>

#include "controls/naming.h"
#include "protocol/version.h"
#include "status/system_report.h"

namespace zelvar {

QLineEdit* NewDisplayField(const QString& name, const QString& inWords, QWidget* parent,
                           std::string_view text) {
    auto* field = Named(new QLineEdit(Text(text), parent), name, inWords);
    field->setReadOnly(true);
    // Hundreds of them would make the way with Tab long.
    field->setFocusPolicy(Qt::ClickFocus);
    return field;
}

QLabel* NewLabel(const QString& name, const QString& caption, QWidget* parent) {
    return Named(new QLabel(caption, parent), name, caption);
}

SystemFields BuildSystemFields(QWidget* parent, QGridLayout& layout) {
    struct Row {
        const char* labelName;
        const char* fieldName;
        const char* caption;
    };
    constexpr Row kRows[] = {{"lblSystem", "txtSystem", "System Status"},
                             {"lblSysVer", "txtSysVer", "System Version"},
                             {"lblProtVer", "txtProtVer", "Protocol Version"}};
    QLineEdit* fields[3] = {};
    for (int i = 0; i < 3; ++i) {
        const QString caption = Text(kRows[i].caption);
        fields[i] = NewDisplayField(Text(kRows[i].fieldName), caption, parent);
        layout.addWidget(NewLabel(Text(kRows[i].labelName), caption, parent), i, 0);
        layout.addWidget(fields[i], i, 1);
    }
    return {fields[0], fields[1], fields[2]};
}

void ShowInField(QLineEdit& field, const QString& text) {
    if (field.text() != text) {
        field.setText(text);
        field.repaint();
    }
}

void ShowSystemFields(const SystemFields& fields, const SystemStatus& status) {
    ShowInField(*fields.txtSystem, Text(SystemStateName(status.systemState)));
    ShowInField(*fields.txtSysVer, Text(SystemVersionText(status.unit)));
    ShowInField(*fields.txtProtVer, status.protocolVersion < 0
                                        ? QStringLiteral("?")
                                        : Text(FormatVersion(status.protocolVersion)));
}

}  // namespace zelvar
