// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/lost_focus.h"

#include <QEvent>
#include <QFocusEvent>

#include <utility>

namespace zelvar {

namespace {

class LostFocusWatch : public QObject {
  public:
    LostFocusWatch(QWidget* control, std::function<void()> handler)
        : QObject(control), kind_(control->metaObject()), handler_(std::move(handler)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        // A control in its destructor loses the focus, too, when there is little left to handle it.
        if (event->type() == QEvent::FocusOut && watched->metaObject() == kind_) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
                handler_();
            }
        }
        return false;
    }

  private:
    const QMetaObject* kind_;
    std::function<void()> handler_;
};

}  // namespace

void OnLostFocus(QWidget* control, std::function<void()> handler) {
    control->installEventFilter(new LostFocusWatch(control, std::move(handler)));
}

}  // namespace zelvar
