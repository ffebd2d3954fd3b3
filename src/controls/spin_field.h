// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <QLabel>

namespace zelvar {

/// A spin control with its text field. The field takes any text, since a wrong number is clamped
/// and never refused; the control steps from the number that the field shows.
class SpinField : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)

  public:
    /// @param spinName, fieldName object names of the spin control and of its text field
    /// @param accessibleName of both
    SpinField(const QString& spinName, const QString& fieldName, const QString& accessibleName,
              int minimum, int maximum, QWidget* parent = nullptr);

    int minimum() const { return minimum_; }
    int maximum() const { return maximum_; }
    void setMinimum(int minimum) { minimum_ = minimum; }
    void setMaximum(int maximum) { maximum_ = maximum; }

    using QAbstractSpinBox::lineEdit;

    /// The number of the text, rounded (a half to the even neighbour) and clamped to the range.
    int value() const;

    /// Brings the text into the range, in place: a number above the maximum becomes the maximum,
    /// one below the minimum the minimum; any other text stays as it is.
    void clamp();

    void stepBy(int steps) override;
    QValidator::State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// Emitted on every text change, by user or code.
    void textChanged();
    /// The user has stepped with an arrow or a key.
    void stepped();

  protected:
    StepEnabled stepEnabled() const override;

  private:
    int minimum_;
    int maximum_;
};

/// A number field whose text is clamped to its range on every change.
/// @param buddy gives the keyboard to the field; may be null
SpinField* ClampedField(const QString& spinName, const QString& fieldName,
                        const QString& accessibleName, int minimum, int maximum, QWidget* parent,
                        QLabel* buddy = nullptr);

}  // namespace zelvar
