// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <array>

#include "controls/secondary_window.h"
#include "status/status_fields.h"
#include "status/system_report.h"

namespace zelvar {

/// The Classic View of a status request: channel 0 of an older system.
class DlgZelvarStatus : public SecondaryWindow {
    Q_OBJECT

  public:
    DlgZelvarStatus();

    void Show(const SystemStatus& status);

  private:
    QWidget* BuildSystem();
    QWidget* BuildPointMotorModules();
    QWidget* BuildTractionModules();

    SystemFields system_{};
    std::array<QLineEdit*, 4> txtDIP_{};
    std::array<QLineEdit*, kClassicJsModules> txtJSstatus_{};
    std::array<QLineEdit*, kClassicVDLines> txtVDtype_{};
    std::array<QLineEdit*, kClassicVDLines> txtVDstatus_{};
};

}  // namespace zelvar
