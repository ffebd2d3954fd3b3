// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPushButton>

#include "controls/speed_slider.h"

namespace zelvar {

/// The button that stops a locomotive at once: large and red in every theme.
QPushButton* EstopButton(const char* name, const char* accessibleName, QWidget* parent);

/// A label that shows the value of a slider.
QLabel* SliderReadOut(const QString& name, const SpeedSlider* slider, int widest);

}  // namespace zelvar
