// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>

#include <array>
#include <span>

#include "controls/secondary_window.h"
#include "status/status_fields.h"
#include "status/system_report.h"

namespace zelvar {

/// The new view of a status request: both channels with all module families.
class DlgZelvarStatus44 : public SecondaryWindow {
    Q_OBJECT

  public:
    /// A column head and the number of columns below it.
    struct Head {
        const char* name;
        const char* caption;
        int columns;
    };

    /// The frames of a family whose modules have one state and one version each.
    struct ModuleFrames {
        int firstFrame;
        /// The family in the fields' accessible names.
        const char* words;
        int perChannel;
        std::array<Head, 3> heads;
        // Object names.
        const char* number;
        const char* status;
        const char* version;
    };

    DlgZelvarStatus44();

    void Show(const SystemStatus& status);

  private:
    void BuildFrames();
    void BuildSystem();
    QGridLayout* NewRows(int frame, int columns);
    static void AddHeads(QGridLayout* grid, int channel, std::span<const Head> heads);
    /// The number of a row's module. @param index its number in the whole system
    static void AddNumber(QGridLayout* grid, int row, const char* name, int index, int module);
    void BuildTractionModules(int channel);
    void BuildModules(const ModuleFrames& family, int channel, std::span<QLineEdit*> states,
                      std::span<QLineEdit*> versions);
    QLineEdit* NewField(const char* name, int index, const QString& accessibleName,
                        QGroupBox* frame);
    void chkShowChannel0_Click(bool checked);
    void Resize(int widthInTwips);

    std::array<QGroupBox*, 6> frmStatus_{};
    SystemFields system_{};
    std::array<QLineEdit*, kVDPrimaryLines> txtVDtype_{};
    std::array<QLineEdit*, kVDLines> txtVDstatus_{};
    std::array<QLineEdit*, kVDLines> txtVDversion_{};
    std::array<QLineEdit*, kJsModules> txtJSstatus_{};
    std::array<QLineEdit*, kJsModules> txtJSver_{};
    std::array<QLineEdit*, kYRModules> txtYRstatus_{};
    std::array<QLineEdit*, kYRModules> txtYRver_{};
    QCheckBox* chkShowChannel0_ = nullptr;
};

}  // namespace zelvar
