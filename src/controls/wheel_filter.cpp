// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/wheel_filter.h"

#include <QEvent>

namespace zelvar {

namespace {

class WheelFilter : public QObject {
  public:
    WheelFilter(QWidget& control, Wheel works)
        : QObject(&control), control_(control), works_(works) {}

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::Wheel || (works_ == Wheel::WithFocus && control_.hasFocus())) {
            return false;
        }
        // What the control leaves goes on to the area around it, which may scroll.
        event->ignore();
        return true;
    }

  private:
    QWidget& control_;
    Wheel works_;
};

}  // namespace

void FilterWheel(QWidget& control, Wheel works) {
    control.installEventFilter(new WheelFilter(control, works));
}

}  // namespace zelvar
