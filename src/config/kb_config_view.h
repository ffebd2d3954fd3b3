// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "protocol/status.h"

namespace zelvar {

/// What the "KB-x" tab shows of its controls.
struct KBConfigView {
    bool showFrame = true;
    /// All configuration switches, the button that reads them, and every transparent mode.
    bool full = true;

    bool operator==(const KBConfigView&) const = default;
};

/// Which controls of the "KB-x" tab the unit supports.
KBConfigView KBConfigViewOf(const CentralUnit& unit);

}  // namespace zelvar
