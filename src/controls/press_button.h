// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace zelvar {

// Buttons and modifier keys as `PressButton::MouseDown` reports them.
constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kMiddleButton = 4;
constexpr int kShiftKey = 1;
constexpr int kCtrlKey = 2;
constexpr int kAltKey = 4;

/// A button that acts when it is pressed, with any mouse button. Space and Enter count as a plain
/// press of the left one.
class PressButton : public QPushButton {
    Q_OBJECT

  public:
    explicit PressButton(const QString& caption, QWidget* parent = nullptr);

  Q_SIGNALS:
    /// @param button `kLeftButton`, `kRightButton`, `kMiddleButton` or 0 for another one
    /// @param shift sum of `kShiftKey`, `kCtrlKey` and `kAltKey`
    void MouseDown(int button, int shift);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace zelvar
