// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/message_box.h"

namespace zelvar {

/// Warns before an erase, and confirms when the user cancels it.
/// @param units what is erased, such as "VD-units" @return whether to go on
bool AgreesToErase(MessageBox& messageBox, std::string_view units);

}  // namespace zelvar
