// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

namespace zelvar {

/// Lets the first SIGTERM, SIGINT or SIGHUP end the event loop, so that the windows and the port
/// are closed as by the user; the second one kills. Call it once, when the application object is
/// there. Does nothing where there are no such signals.
void QuitOnSignal();

}  // namespace zelvar
