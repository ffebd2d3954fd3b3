// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

#include <string_view>

namespace zelvar {

/// @param text ASCII or UTF-8
QString ToQString(std::string_view text);

/// The object name of a member of a control array: the name, then the index in round brackets.
QString IndexedName(std::string_view name, qsizetype index);

/// Gives a control its object name and the name under which assistive technology announces it.
/// @return the control
template <typename Control>
Control* Named(Control* control, const QString& name, const QString& accessibleName) {
    control->setObjectName(name);
    control->setAccessibleName(accessibleName);
    return control;
}

template <typename Control>
Control* Named(Control* control, const char* name, const char* accessibleName) {
    return Named(control, ToQString(name), ToQString(accessibleName));
}

/// A label whose caption is its accessible name, too. @param buddy the control that it names
QLabel* CaptionLabel(const QString& name, const QString& caption, QWidget* parent,
                     QWidget* buddy = nullptr);

}  // namespace zelvar
