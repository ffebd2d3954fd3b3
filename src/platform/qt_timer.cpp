// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_timer.h"

#include "platform/nested_loop.h"

namespace zelvar {

QtTimer::QtTimer(int interval) {
    timer_.setInterval(interval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        if (!NestedLoop::IsTurning() && onTick_) {
            onTick_();
        }
    });
}

void QtTimer::SetEnabled(bool enabled) {
    if (enabled) {
        timer_.start();
    } else {
        timer_.stop();
    }
}

}  // namespace zelvar
