// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace zelvar {

/// A button that acts when it is pressed, with any mouse button. Space and Enter count as a plain
/// press of the left one.
class PressButton : public QPushButton {
    Q_OBJECT

  public:
    explicit PressButton(const QString& caption, QWidget* parent = nullptr);

  Q_SIGNALS:
    /// @param shiftLeft whether it was the left button with Shift and no other modifier key
    void mouseDown(bool shiftLeft);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace zelvar
