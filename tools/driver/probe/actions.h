// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <optional>

#include "input.h"

namespace zelvar::e2e {

/// Checks a command that acts and gives what carries it out.
/// @param words the command and its arguments
/// @return nothing when no such command exists
/// @throws ProbeError when it could not be carried out
std::optional<std::function<void()>> PrepareAction(Input& input, const QStringList& words);

}  // namespace zelvar::e2e
