// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

#include "test/accessories/command_group.h"

namespace zelvar {

/// Moves one point motor, named by its number or by its JS70 module and its place there.
class PointGroup : public CommandGroup {
    Q_OBJECT

  public:
    PointGroup(Link& link, QWidget* parent);

  private:
    void LayOut();
    void chkTestJS70selectmodule_Click();
    Command SetTo(bool thrown) const;

    QCheckBox* chkTestJS70selectmodule_;
    Field module_;
    Field device_;
    QPushButton* straight_;
    QPushButton* thrown_;
};

}  // namespace zelvar
