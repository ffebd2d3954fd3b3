// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "protocol/status.h"

namespace zelvar {

/// The caption of `lblKBtype`, "?" for an unknown type.
std::string_view CentralUnitCaption(const CentralUnit& unit);

/// The text of the system-version fields: the type's prefix, then the version when known.
std::string SystemVersionText(const CentralUnit& unit);

}  // namespace zelvar
