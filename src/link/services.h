// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "link/link.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/progress.h"

namespace zelvar {

/// What a room needs of the others: the line, and the ways to ask, to show and to wait. All of it
/// outlives the rooms.
struct Services {
    Link& link;
    MessageBox& messageBox;
    Progress& progress;
    const Clock& clock;
};

}  // namespace zelvar
