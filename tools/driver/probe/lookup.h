// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QString>
#include <QWidget>

#include <stdexcept>

namespace zelvar::e2e {

/// What makes a command fail; its text is the answer.
class ProbeError : public std::runtime_error {
  public:
    explicit ProbeError(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

/// The one control of that object name. "WINDOW/NAME" looks in one window only.
/// @throws ProbeError when there is none, or more than one
QWidget& FindControl(const QString& name);

/// A control of a kind. @throws ProbeError as above, or when it is of another kind
template <typename Control>
Control& Find(const QString& name) {
    auto* control = qobject_cast<Control*>(&FindControl(name));
    if (control == nullptr) {
        throw ProbeError(name + QStringLiteral(" is a ") +
                         QString::fromLatin1(FindControl(name).metaObject()->className()));
    }
    return *control;
}

/// A window by its object name; null while it does not exist.
QWidget* FindWindow(const QString& name);

}  // namespace zelvar::e2e
