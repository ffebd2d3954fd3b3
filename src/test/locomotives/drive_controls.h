// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include <initializer_list>

#include "controls/speed_slider.h"
#include "controls/spin_field.h"
#include "link/services.h"

namespace zelvar {

/// What the three locomotive pages share with the block controls beside them.
struct DriveDesk {
    Services services;
    /// `UpDown_Block` with `txtTestBlock`.
    SpinField* block = nullptr;
    SpeedSlider* analogSpeed = nullptr;
    SpeedSlider* dccSpeed = nullptr;
    /// While raised, all three speed sliders and the direction and light boxes send nothing.
    bool inhibitSpeedEvents = false;

    /// 0..255
    int Block() const { return block->Value(); }

    /// Puts the analog and the DCC slider to 0 without a command of their own.
    void ForceSpeedsToZero();
};

/// A label with a caption that says by itself what it is for.
QLabel* CaptionLabel(const QString& name, const QString& caption, QWidget* parent);

/// A number field whose text is brought into its range whenever it changes.
/// @param buddy gets the keyboard to the field; may be null
SpinField* ClampedField(const QString& spinName, const QString& fieldName, const QString& inWords,
                        int minimum, int maximum, QWidget* parent, QLabel* buddy = nullptr);

/// The button that stops a locomotive at once: large and red in every theme.
QPushButton* EstopButton(const char* name, const char* inWords, QWidget* parent);

/// A label that shows where a slider stands.
QLabel* SliderReadOut(const QString& name, const SpeedSlider* slider, int widest);

/// Lays out controls side by side, the room to their right left free.
QLayout* Row(std::initializer_list<QWidget*> controls);

/// Sets in which order the keyboard goes through controls.
void SetTabOrder(std::initializer_list<QWidget*> controls);

/// Keeps the place of a control while it is hidden, so that nothing else moves.
void KeepPlaceWhenHidden(QWidget* control);

}  // namespace zelvar
