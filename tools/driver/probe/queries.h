// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

namespace zelvar::e2e {

/// Carries out a command that only looks. @param words the command and its arguments
/// @return the values; nothing when no such command exists
/// @throws ProbeError
std::optional<QStringList> RunQuery(const QStringList& words);

}  // namespace zelvar::e2e
