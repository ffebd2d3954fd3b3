// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>
#include <QTimer>

namespace zelvar {

/// A slider whose every new value is a command. A value set by code is reported at once; of the
/// values that the user passes over while the line is busy only the newest is reported, so that
/// sending never falls behind the hand. When a box opens, the slider releases the mouse.
class SpeedSlider : public QSlider {
    Q_OBJECT

  public:
    explicit SpeedSlider(int maximum, QWidget* parent = nullptr);

    /// Sets the value by code; no value that the user has chosen stays unreported.
    void putValue(int value);

  Q_SIGNALS:
    /// There is a new value to send.
    void valueReported();

  protected:
    bool event(QEvent* event) override;

  private:
    void ValueChanged();
    void ReportNewest();
    void ReportIfNew();
    void Report();
    void ReleaseMouse();

    /// Runs while the user has chosen a value that has not been reported yet.
    QTimer report_;
    int lastReported_ = 0;
    bool inUserInput_ = false;
};

}  // namespace zelvar
