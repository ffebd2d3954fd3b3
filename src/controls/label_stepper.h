// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <QLabel>

namespace zelvar {

/// A spin control without a text field of its own: its number is in a label beside it.
class LabelStepper : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)

  public:
    /// @param buddy shows the number, the minimum at first; must outlive this
    LabelStepper(QLabel* buddy, int minimum, int maximum, QWidget* parent = nullptr);

    int minimum() const { return minimum_; }
    int maximum() const { return maximum_; }
    // Both bring the number into the new range.
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /// The number of the label, clamped to the range.
    int value() const;

    /// Shows a number, clamped to the range, and reports it when it differs.
    void setValue(int value);

    void stepBy(int steps) override;

  Q_SIGNALS:
    /// The label shows another number.
    void valueChanged();

  protected:
    StepEnabled stepEnabled() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  private:
    QLabel* buddy_;
    int minimum_;
    int maximum_;
};

}  // namespace zelvar
