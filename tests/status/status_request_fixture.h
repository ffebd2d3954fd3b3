// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "status/status_request.h"
#include "support/recording_view.h"
#include "support/status_responder.h"

namespace zelvar::testing {

/// A status request of a described layout.
class StatusRequestFixture : public LinkFixture {
  protected:
    StatusRequestFixture() { port.responder = std::ref(layout); }

    std::optional<SystemStatus> Run(bool classicAsked = false) {
        return StatusRequest(link, progress, clock, registry, requestView).Run(classicAsked);
    }

    StatusResponder layout;
    ModuleRegistry registry;
    RecordingView requestView{[this] { return port.sent.size(); }};
};

}  // namespace zelvar::testing
