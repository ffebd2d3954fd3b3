// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/caption_label.h"

#include "controls/naming.h"

namespace zelvar {

QLabel* CaptionLabel(const QString& name, const QString& caption, QWidget* parent, QWidget* buddy) {
    auto* label = Named(new QLabel(caption, parent), name, caption);
    label->setBuddy(buddy);
    return label;
}

}  // namespace zelvar
