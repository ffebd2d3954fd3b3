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
    // A row of them must not make Tab a long way.
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

void ShowSystemFields(const SystemFields& fields, const SystemStatus& status) {
    fields.txtSystem->setText(Text(SystemStateName(status.systemState)));
    fields.txtSysVer->setText(Text(SystemVersionText(status.unit)));
    fields.txtProtVer->setText(status.protocolVersion < 0
                                   ? QStringLiteral("?")
                                   : Text(FormatVersion(status.protocolVersion)));
}

}  // namespace zelvar
