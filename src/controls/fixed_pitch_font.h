// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace zelvar {

/// The font of texts whose columns line up.
QFont FixedPitchFont();

}  // namespace zelvar
