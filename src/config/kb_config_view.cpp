// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/kb_config_view.h"

namespace zelvar {

KBConfigView KBConfigViewOf(const CentralUnit& unit) {
    return {unit.type != kUnitKBF, unit.type != kUnitKBF && unit.type != kUnitQlrx};
}

}  // namespace zelvar
