// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

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
    /// What a label looks like; states beyond the first two share the last look.
    enum class Look { Inactive, Active, NoInformation };
    static constexpr std::size_t kLooks = 3;
    struct Cell {
        QLabel* label = nullptr;
        int number = -1;
        Look look = Look::NoInformation;
    };

    static Look LookOf(std::int16_t state);
    void MakePalettes();
    void BuildGrid(QGridLayout& grid);
    QLayout* BuildChoices();
    QLayout* BuildLegend();
    QLabel* FormLabel(int index, const char* caption);
    void Paint(Cell& cell, int number, Look look);
    void LayOutLabels();
    void opFBmod_Click(int index);
    void cmdFBMrefresh_Click();
    int Layout() const;
    int Base() const { return UpDownFBbase_->Value(); }

    FeedbackTable table_;
    std::array<QPalette, kLooks> palettes_;
    std::array<Cell, static_cast<std::size_t>(kFeedbackLabels)> lblFBM_;
    std::array<QLabel*, kLooks> swatches_{};
    std::array<QRadioButton*, static_cast<std::size_t>(kFeedbackLayouts)> opFBmod_{};
    QLabel* lblFBbase_;
    UpDown* UpDownFBbase_;
    QPushButton* cmdFBMrefresh_;
};

}  // namespace zelvar
