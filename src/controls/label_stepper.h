// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <QLabel>

namespace zelvar {

/// A spin control without a text field of its own: its number stands in a label beside it.
class UpDown : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(int minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(int value READ Value WRITE SetValue)

  public:
    /// @param buddy shows the number, the minimum at first; must outlive this
    UpDown(QLabel* buddy, int minimum, int maximum, QWidget* parent = nullptr);

    int Minimum() const { return minimum_; }
    int Maximum() const { return maximum_; }
    void SetMinimum(int minimum) { minimum_ = minimum; }
    void SetMaximum(int maximum) { maximum_ = maximum; }

    /// The number of the label, held within the range.
    int Value() const;

    /// Shows a number, held within the range, and reports it when it is another one.
    void SetValue(int value);

    /// To be called after a change of the range: brings the number into it.
    void HoldWithinRange() { SetValue(Value()); }

    void stepBy(int steps) override;

  Q_SIGNALS:
    /// The label shows another number.
    void Change();

  protected:
    StepEnabled stepEnabled() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QLabel* buddy_;
    int minimum_;
    int maximum_;
};

}  // namespace zelvar
