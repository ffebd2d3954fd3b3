// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <vector>

#include "config/vd_settings.h"
#include "controls/spin_field.h"

namespace zelvar {

/// The controls of one setting of the traction modules, built from its row. Everything keeps its
/// place when it is hidden.
class VDSettingPanel : public QFrame {
    Q_OBJECT

  public:
    explicit VDSettingPanel(const VDSetting& setting, QWidget* parent = nullptr);

    const VDSetting& Setting() const { return setting_; }

    /// The width that the buttons need, and the one they get, the same for a whole form. In pixels.
    int ButtonWidth() const;
    void SetButtonWidth(int width);

    /// Shows the frame and its controls if they are for one of these types of modules.
    /// @param always shows the frame in any case, but not its controls
    void ShowFor(VDTypes types, bool always);
    void ShowVDGetButtons(VDGetButtons buttons);

    VDInput Input() const;

    /// Brings the numbers into their range, if that waits for the click.
    void ClampOnClick();

    /// Shows a reported value in green. @return false when it does not belong here
    bool ShowReply(const VDReply& reply);

    /// Restores the system colours of all controls.
    void RestoreColours();

  Q_SIGNALS:
    /// @param index `kSetButton` or `kGetButton`
    void buttonClicked(int index);
    void buttonLostFocus();
    /// The text of a field has changed.
    void fieldChanged(int field);
    /// A field's spin control has stepped.
    void fieldStepped(int field);

  public:
    void ClampField(int field);
    void RestoreFieldColour(int field);

  private:
    void BuildFields();
    void BuildOptions();
    void BuildButtons();
    void LayOutBanks();
    void LayOutInRow();
    QLabel* AddTitle(QGridLayout& layout);
    QLayout* LayOutControls();
    void PlaceBankRows(bool twoRows);
    /// For a setting whose buttons are outside: a border around a single button would look as if
    /// something were missing beside it.
    void ShowBorder(bool shown);
    int ChosenOption() const;

    const VDSetting& setting_;
    QFrame* frame_;
    std::vector<SpinField*> fields_;
    /// Null for a field without a label.
    std::vector<QLabel*> labels_;
    /// The ids are the options' values.
    QButtonGroup* options_;
    std::array<QPushButton*, 2> buttons_{};
};

}  // namespace zelvar
