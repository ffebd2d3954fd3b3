// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <functional>
#include <vector>

#include "controls/spin_field.h"
#include "link/link.h"

namespace zelvar {

/// A number field of a group, 0..`maximum`, and the label that names it.
struct CommandField {
    QString label;
    QString caption;
    QString spin;
    QString field;
    QString accessibleName;
    int maximum = 0;
};

/// A group of number fields, and of buttons that send one command each.
class CommandGroup : public QGroupBox {
  public:
    struct Field {
        QLabel* label;
        SpinField* field;
    };

    CommandGroup(const QString& title, Link& link, QWidget* parent);

    Field AddField(const CommandField& row);

    /// @param command makes the command when the button is clicked
    QPushButton* AddButton(const QString& name, const QString& caption,
                           const QString& accessibleName, std::function<Command()> command);

    /// Lays out the fields side by side below their captions, then the one button.
    void LayOutInColumns();

  private:
    Link& link_;
    std::vector<Field> fields_;
    std::vector<QPushButton*> buttons_;
};

}  // namespace zelvar
