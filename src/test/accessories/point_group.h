// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "test/locomotives/drive_controls.h"

namespace zelvar {

/// Moves one point motor, named by its number or by its JS70 module and the place there.
class PointGroup : public QGroupBox {
    Q_OBJECT

  public:
    explicit PointGroup(const Services& services, QWidget* parent = nullptr);

  private:
    void LayOut();
    void chkTestJS70selectmodule_Click();
    void txtTestJS70device_Change();
    void cmdTestJS70_Click(int index);

    Services services_;
    QCheckBox* chkTestJS70selectmodule_;
    QLabel* lblTestJS70_[2];
    SpinField* UpDowntestJS70module_;
    SpinField* UpDownTestJS70device_;
    QPushButton* cmdTestJS70_[2];
};

}  // namespace zelvar
