// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>

namespace zelvar {

/// A spin control with its text field. The field takes any text, since what is wrong is clamped
/// and never refused; the control steps from whatever number the field shows.
class SpinField : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(int minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum)

  public:
    /// @param spinName, fieldName object names of the spin control and of its text field
    /// @param inWords accessible name of both
    SpinField(const QString& spinName, const QString& fieldName, const QString& inWords,
              int minimum, int maximum, QWidget* parent = nullptr);

    int Minimum() const { return minimum_; }
    int Maximum() const { return maximum_; }
    void SetMinimum(int minimum) { minimum_ = minimum; }
    void SetMaximum(int maximum) { maximum_ = maximum; }

    QLineEdit* Field() const { return lineEdit(); }

    /// The number of the text, rounded (a half to the even neighbour) and held within the range.
    int Value() const;

    /// Brings the text into the range, in place: a number above the maximum becomes the maximum,
    /// one below the minimum the minimum; any other text stays as it is.
    void Clamp();

    void stepBy(int steps) override;
    QValidator::State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// The text is another one, whoever changed it.
    void Change();
    /// The spin control has stepped.
    void Stepped();

  protected:
    StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    int minimum_;
    int maximum_;
};

}  // namespace zelvar
