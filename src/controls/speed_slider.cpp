// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "controls/speed_slider.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

#include "controls/wheel_filter.h"
#include "platform/nested_loop.h"

namespace zelvar {

namespace {

constexpr int kSmallStep = 1;
constexpr int kLargeStep = 5;

/// Milliseconds until the next attempt to report a value that another handler holds up.
constexpr int kRetryInterval = 20;

bool IsUserInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::KeyPress:
        case QEvent::Wheel:
        // The repeated steps while the mouse is held beside the handle.
        case QEvent::Timer:
            return true;
        default:
            return false;
    }
}

}  // namespace

SpeedSlider::SpeedSlider(int maximum, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, maximum);
    setSingleStep(kSmallStep);
    setPageStep(kLargeStep);
    setFocusPolicy(Qt::StrongFocus);
    // Scrolling past must not drive a train.
    FilterWheel(*this, Wheel::WithFocus);
    report_.setSingleShot(true);
    connect(&report_, &QTimer::timeout, this, &SpeedSlider::ReportNewest);
    connect(this, &QSlider::valueChanged, this, &SpeedSlider::ValueChanged);
}

void SpeedSlider::putValue(int value) {
    const bool unreported = report_.isActive();
    report_.stop();
    if (value != QSlider::value()) {
        setValue(value);
    } else if (unreported) {
        ReportIfNew();
    }
}

bool SpeedSlider::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        ReleaseMouse();
    }
    const QScopedValueRollback<bool> input(inUserInput_,
                                           inUserInput_ || IsUserInput(event->type()));
    return QSlider::event(event);
}

void SpeedSlider::ValueChanged() {
    if (inUserInput_) {
        // The mouse moves that waited during an exchange come first, then this timer.
        if (!report_.isActive()) {
            report_.start(0);
        }
        return;
    }
    report_.stop();
    Report();
}

void SpeedSlider::ReportNewest() {
    if (NestedLoop::IsTurning()) {
        report_.start(kRetryInterval);
        return;
    }
    ReportIfNew();
}

void SpeedSlider::ReportIfNew() {
    // The user may have returned to the value that was reported last.
    if (value() != lastReported_) {
        Report();
    }
}

void SpeedSlider::Report() {
    lastReported_ = value();
    Q_EMIT valueReported();
}

void SpeedSlider::ReleaseMouse() {
    // The box has the mouse from here on, so the real release never arrives.
    const QPointF place = rect().center();
    QMouseEvent release(QEvent::MouseButtonRelease, place, mapToGlobal(place), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QSlider::mouseReleaseEvent(&release);
    setSliderDown(false);
    setRepeatAction(SliderNoAction);
}

}  // namespace zelvar
