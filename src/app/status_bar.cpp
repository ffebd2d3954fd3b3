// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "app/status_bar.h"

#include <QApplication>
#include <QKeyEvent>

#include "controls/arrange.h"
#include "controls/naming.h"
#include "controls/system_state_label.h"
#include "platform/nested_loop.h"

namespace zelvar {

namespace {

constexpr int kProgressWidth = 160;
constexpr int kMargin = 6;

bool IsUserInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::Close:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
        case QEvent::TabletMove:
        case QEvent::InputMethod:
        case QEvent::DragEnter:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

bool IsKey(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::KeyRelease ||
           type == QEvent::ShortcutOverride;
}

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent),
      lblBarStatus_(Named(new QLabel(this), "lblBarStatus", "System status")),
      lblBarDevice_(Named(new QLabel(this), "lblBarDevice", "Open device")),
      lblBarProgress_(Named(new QLabel(this), "lblBarProgress", "Work in progress")),
      prgBar_(Named(new QProgressBar(this), "prgBar", "Progress")),
      cmdCancel_(
          Named(new QPushButton(QStringLiteral("Cancel"), this), "cmdCancel", "Cancel the wait")) {
    prgBar_->setFixedWidth(kProgressWidth);
    prgBar_->setTextVisible(false);
    addWidget(lblBarStatus_);
    addWidget(lblBarDevice_, 1);
    // A long device path is cut, it must not widen the window.
    lblBarDevice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblBarStatus_->setContentsMargins(kMargin, 0, kMargin, 0);
    for (QWidget* widget : {static_cast<QWidget*>(lblBarProgress_), static_cast<QWidget*>(prgBar_),
                            static_cast<QWidget*>(cmdCancel_)}) {
        addPermanentWidget(widget);
        KeepPlaceWhenHidden(widget);
        widget->setVisible(false);
    }
    lblBarProgress_->setMinimumWidth(lblBarProgress_->fontMetrics().horizontalAdvance(
        QStringLiteral("Asking the central unit ")));
    lblBarProgress_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { cancelled_ = true; });
    ShowSystemState(SystemState::Disconnected);
    ShowDevice(QStringLiteral("No port open"));
}

void StatusBar::ShowSystemState(SystemState state) {
    ShowSystemStateIn(*lblBarStatus_, state);
}

void StatusBar::ShowDevice(const QString& text) {
    lblBarDevice_->setText(text);
}

void StatusBar::Begin(const std::string& caption, int steps) {
    // The work that Cancel would have ended is over.
    WithdrawCancel();
    lblBarProgress_->setText(ToQString(caption));
    prgBar_->setRange(0, steps);
    prgBar_->setValue(0);
    lblBarProgress_->setVisible(true);
    prgBar_->setVisible(true);
    repaint();
}

void StatusBar::Step() {
    prgBar_->setValue(prgBar_->value() + 1);
    prgBar_->repaint();
}

void StatusBar::End() {
    lblBarProgress_->setVisible(false);
    prgBar_->setVisible(false);
    WithdrawCancel();
}

void StatusBar::WithdrawCancel() {
    if (offered_) {
        cmdCancel_->setVisible(false);
        if (focusBefore_ != nullptr) {
            focusBefore_->setFocus();
        }
    }
    offered_ = false;
    cancelled_ = false;
}

void StatusBar::OfferCancel() {
    offered_ = true;
    focusBefore_ = QApplication::focusWidget();
    cmdCancel_->setVisible(true);
    cmdCancel_->setFocus();
    repaint();
}

bool StatusBar::IsCancelled() {
    PumpCancel();
    return cancelled_;
}

void StatusBar::PumpCancel() {
    if (!offered_ || cancelled_) {
        return;
    }
    const NestedLoop nested;
    qApp->installEventFilter(this);
    QApplication::processEvents();
    qApp->removeEventFilter(this);
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Quit) {
        // The program cannot end before the wait does.
        cancelled_ = true;
        qApp->removeEventFilter(this);
        return false;
    }
    return IsUserInput(event->type()) && !IsForCancel(watched, event);
}

bool StatusBar::IsForCancel(QObject* watched, QEvent* event) {
    // A window hands its events on to its controls, where the filter sees them again.
    if (watched->isWindowType()) {
        return event->type() != QEvent::Close;
    }
    if (watched != cmdCancel_) {
        return false;
    }
    if (!IsKey(event->type())) {
        return true;
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (event->type() == QEvent::KeyPress) {
                cmdCancel_->click();
            }
            return false;
        case Qt::Key_Space:
            return true;
        default:
            return false;
    }
}

}  // namespace zelvar
