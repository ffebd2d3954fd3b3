// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/command_button.h"

#include "controls/naming.h"

namespace zelvar {

QPushButton* MakeCommandButton(const QString& caption, const QString& name, const QString& inWords,
                               QWidget* parent) {
    auto* button = Named(new QPushButton(caption, parent), name, inWords);
    button->setAutoDefault(true);
    return button;
}

}  // namespace zelvar
