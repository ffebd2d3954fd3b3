// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>

#include "link/services.h"
#include "status/central_unit.h"

namespace zelvar {

/// The "KB-x" tab: the central unit.
class KBTab : public QWidget {
    Q_OBJECT

  public:
    KBTab(const Services& services, QWidget* parent = nullptr);

    /// Names the unit that was found and shows what it supports.
    void ShowUnit(const CentralUnit& unit);

  private:
    void ShowKBConfigView(const KBConfigView& view);
    QFrame* BuildConfigFrame();

    QLabel* lblKBtype_;
    QFrame* frmConfig_ = nullptr;
    std::array<QCheckBox*, 8> chkKBEconfig_{};
    std::array<QPushButton*, 2> cmdConfig_{};
    std::array<QPushButton*, 3> cmdTM_{};
};

}  // namespace zelvar
