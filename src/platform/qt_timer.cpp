// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_timer.h"

namespace zelvar {

QtTimer::QtTimer(HandlerGate& gate, int interval) : gate_(gate) {
    timer_.setInterval(interval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        if (!gate_.IsBusy() && onTick_) {
            const HandlerGate::Scope scope(gate_);
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
