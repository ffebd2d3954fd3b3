// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/command_button.h"

#include <utility>

#include "controls/naming.h"

namespace zelvar {

QPushButton* MakeCommandButton(const QString& caption, const QString& name,
                               const QString& accessibleName, QWidget* parent) {
    auto* button = Named(new QPushButton(caption, parent), name, accessibleName);
    button->setAutoDefault(true);
    return button;
}

void SendOnClick(QPushButton* button, Link& link, std::function<Command()> command) {
    QObject::connect(button, &QPushButton::clicked, button, [&link, command = std::move(command)] {
        if (link.CheckPort()) {
            link.Transact(command());
        }
    });
}

}  // namespace zelvar
