// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <string_view>

namespace zelvar {

/// ASCII or UTF-8 text as Qt takes it.
QString Text(std::string_view text);

/// The object name of a member of a control array: the name, then the index in round brackets.
QString IndexedName(std::string_view name, int index);

/// Gives a control the name under which it can be found and the words with which assistive
/// technology announces it. @return the control
template <typename Control>
Control* Named(Control* control, const QString& name, const QString& inWords) {
    control->setObjectName(name);
    control->setAccessibleName(inWords);
    return control;
}

template <typename Control>
Control* Named(Control* control, const char* name, const char* inWords) {
    return Named(control, Text(name), Text(inWords));
}

}  // namespace zelvar
