// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/naming.h"

namespace zelvar {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString IndexedName(std::string_view name, qsizetype index) {
    return QStringLiteral("%1(%2)").arg(ToQString(name)).arg(index);
}

QLabel* CaptionLabel(const QString& name, const QString& caption, QWidget* parent, QWidget* buddy) {
    auto* label = Named(new QLabel(caption, parent), name, caption);
    label->setBuddy(buddy);
    return label;
}

}  // namespace zelvar
