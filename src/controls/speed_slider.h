// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>
#include <QTimer>

namespace zelvar {

/// A slider whose every new value is a command. What code sets is reported at once; of what the
/// user passes over while the line is busy only the newest value is reported, so that sending
/// never falls behind the hand. When a box comes up, the slider lets go of the mouse.
class SpeedSlider : public QSlider {
    Q_OBJECT

  public:
    explicit SpeedSlider(int maximum, QWidget* parent = nullptr);

    /// Sets the value from code, leaving none of the user's unreported.
    void Put(int value);

  Q_SIGNALS:
    /// There is a new value.
    void Change();

  protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void ValueChanged();
    void ReportNewest();
    void ReportIfNew();
    void Report();
    void LetGo();

    /// Runs while the user has chosen a value that is not reported yet.
    QTimer report_;
    int lastReported_ = 0;
    bool inUserInput_ = false;
};

}  // namespace zelvar
