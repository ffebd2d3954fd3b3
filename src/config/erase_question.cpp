// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/erase_question.h"

namespace zelvar {

bool AgreesToErase(MessageBox& messageBox, std::string_view units) {
    const std::string warning =
        "Warning! This will permanently erase all settings of all selected " + std::string(units);
    if (messageBox.Ask(warning, BoxIcon::Exclamation, BoxButtons::OkCancel) == BoxAnswer::Ok) {
        return true;
    }
    messageBox.Tell("Operation Cancelled", BoxIcon::Plain);
    return false;
}

}  // namespace zelvar
