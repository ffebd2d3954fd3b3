// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <functional>

#include "platform/handler_gate.h"
#include "platform/timer.h"

namespace zelvar {

/// A timer of the event loop. A tick that falls due while a handler runs is dropped: the handler
/// may be showing a message box, and the event loop of that box must not run it either.
class QtTimer : public Timer {
  public:
    /// @param interval in milliseconds
    QtTimer(HandlerGate& gate, int interval);

    void SetHandler(std::function<void()> onTick) { onTick_ = std::move(onTick); }
    void SetEnabled(bool enabled) override;
    bool IsEnabled() const override { return timer_.isActive(); }

  private:
    HandlerGate& gate_;
    QTimer timer_;
    std::function<void()> onTick_;
};

}  // namespace zelvar
