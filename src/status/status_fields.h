// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QWidget>

#include <string_view>

namespace zelvar {

/// What every text box of a status view says until a status request writes it.
inline constexpr std::string_view kNotYetKnown = "Unknown";

/// A text box that only shows.
QLineEdit* NewDisplayField(const QString& name, const QString& accessibleName, QWidget* parent,
                           std::string_view text = kNotYetKnown);

/// Shows a text, at once when the field is in view: no event loop turns during a request.
void ShowInField(QLineEdit& field, const QString& text);

/// The three fields about the whole system, which both views have.
struct SystemFields {
    QLineEdit* txtSystem;
    QLineEdit* txtSysVer;
    QLineEdit* txtProtVer;
};

struct SystemStatus;

/// Builds the fields with their labels, one below the other.
SystemFields BuildSystemFields(QWidget* parent, QGridLayout& layout);

void ShowSystemFields(const SystemFields& fields, const SystemStatus& status);

}  // namespace zelvar
