// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/status_fields.h"

#include <QGridLayout>

#include "controls/naming.h"
#include "protocol/version.h"
#include "status/system_report.h"

namespace zelvar {

QLineEdit* NewDisplayField(const QString& name, const QString& accessibleName, QWidget* parent,
                           std::string_view text) {
    auto* field = Named(new QLineEdit(ToQString(text), parent), name, accessibleName);
    field->setReadOnly(true);
    // Hundreds of them would make the way with Tab long.
    field->setFocusPolicy(Qt::ClickFocus);
    return field;
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
        const QString caption = ToQString(kRows[i].caption);
        fields[i] = NewDisplayField(ToQString(kRows[i].fieldName), caption, parent);
        layout.addWidget(CaptionLabel(ToQString(kRows[i].labelName), caption, parent), i, 0);
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
    ShowInField(*fields.txtSystem, ToQString(SystemStateName(status.systemState)));
    ShowInField(*fields.txtSysVer, ToQString(SystemVersionText(status.unit)));
    ShowInField(*fields.txtProtVer, status.protocolVersion < 0
                                        ? QStringLiteral("?")
                                        : ToQString(FormatVersion(status.protocolVersion)));
}

}  // namespace zelvar
