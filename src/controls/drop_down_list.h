// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace zelvar {

/// A list to choose from. Choosing an entry reports it even when it was chosen already, and a
/// choice by code reports like the user's; filling and clearing report nothing. The wheel does not
/// choose, since a choice acts at once.
class DropDownList : public QComboBox {
    Q_OBJECT

  public:
    explicit DropDownList(QWidget* parent = nullptr);

    /// Empties the list.
    void Clear();

    /// Adds an entry at the end; the selection stays as it is.
    void Append(const QString& text, const QVariant& itemData = QVariant());

    /// The item data of the selected entry. @return `none` when nothing is selected
    int SelectedData(int none) const;

  Q_SIGNALS:
    /// An entry was chosen; it is the current one now.
    void chosen();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  public:
    void showPopup() override;

  private:
    bool filling_ = false;
    /// The present choice has been reported through the change of the current entry.
    bool reported_ = false;
};

}  // namespace zelvar
