// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <functional>

#include "platform/timer.h"

namespace zelvar {

/// A timer of the event loop. A tick that falls due while a nested loop turns is dropped, since a
/// handler is still running then.
class QtTimer : public Timer {
  public:
    /// @param interval in milliseconds
    explicit QtTimer(int interval);

    void SetHandler(std::function<void()> onTick) { onTick_ = std::move(onTick); }
    void SetEnabled(bool enabled) override;
    bool IsEnabled() const override { return timer_.isActive(); }

  private:
    QTimer timer_;
    std::function<void()> onTick_;
};

}  // namespace zelvar
