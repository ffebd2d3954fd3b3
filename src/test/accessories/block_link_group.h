// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QGroupBox>

#include "test/locomotives/drive_controls.h"

namespace zelvar {

/// Links track blocks and unlinks them.
class BlockLinkGroup : public QGroupBox {
    Q_OBJECT

  public:
    explicit BlockLinkGroup(const Services& services, QWidget* parent = nullptr);

  private:
    void LayOut();
    void CommandTestLink_Click(int index);

    static constexpr int kButtons = 4;

    Services services_;
    SpinField* UpDownTestLink_[2];
    QCheckBox* chkTestUnlinkZero_;
    QPushButton* CommandTestLink_[kButtons];
};

}  // namespace zelvar
