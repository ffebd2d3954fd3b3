// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <cstdint>

#include "controls/label_stepper.h"
#include "controls/secondary_window.h"
#include "protocol/reports.h"
#include "test/feedback/feedback_table.h"

namespace zelvar {

/// The feedback monitor: 128 inputs at a time as a grid of coloured numbers. It keeps the table
/// of all inputs from its creation on, shown or not.
class DlgZelvarFeedback : public SecondaryWindow {
    Q_OBJECT

  public:
    DlgZelvarFeedback();

    /// Stores the state of an input and recolours the label that shows it.
    /// @return false, with nothing changed, for an index outside 0..2048
    bool fbUpdate(int index, std::int16_t state);

    void Show(const FeedbackReport& report);

    /// @return the wanted input to ask for now, or -1 when there is none
    int fbRequestState() { return table_.fbRequestState(); }

    const FeedbackTable& Table() const { return table_; }

  protected:
    void changeEvent(QEvent* event) override;

  private:
    /// The looks of a label; states beyond the first two share the last one.
    enum class Look { Inactive, Active, NoInformation };
    static constexpr int kLooks = 3;
    struct Cell {
        QLabel* label = nullptr;
        int number = -1;
        Look look = Look::NoInformation;
    };

    static Look LookOf(std::int16_t state);
    const QPalette& PaletteOf(Look look) const { return palettes_[static_cast<int>(look)]; }
    void MakePalettes();
    void BuildGrid(QGridLayout& grid);
    QLayout* BuildChoices();
    QLayout* BuildLegend();
    QLabel* FormLabel(int index, const char* caption);
    void Paint(Cell& cell, int number, Look look);
    void LayOutLabels();
    void opFBmod_Click(int index);
    void cmdFBMrefresh_Click();
    int Layout() const { return opFBmod_->checkedId(); }
    int Base() const { return UpDownFBbase_->value(); }

    FeedbackTable table_;
    std::array<QPalette, kLooks> palettes_;
    std::array<Cell, kFeedbackLabels> lblFBM_;
    std::array<QLabel*, kLooks> swatches_{};
    /// The ids are the layouts.
    QButtonGroup* opFBmod_ = new QButtonGroup(this);
    QLabel* lblFBbase_;
    LabelStepper* UpDownFBbase_;
    QPushButton* cmdFBMrefresh_;
};

}  // namespace zelvar
