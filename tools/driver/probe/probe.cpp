// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "probe.h"

#include <QApplication>
#include <QEvent>
#include <QStyleHints>
#include <QThread>
#include <QTimer>

#include <cstdlib>
#include <optional>
#include <utility>

#include "actions.h"
#include "dark_palette.h"
#include "lookup.h"
#include "queries.h"
#include "wire_text.h"

namespace zelvar::e2e {

namespace {

constexpr int kRetryMs = 5;

}  // namespace

Probe::Probe() : input_([this](std::function<void()> task) { Schedule(std::move(task), true); }) {
    socket_.connectToServer(qEnvironmentVariable("ZELVARPROBE_SOCKET"));
    if (!socket_.waitForConnected()) {
        qWarning("the probe finds no test to talk to");
        return;
    }
    connect(&socket_, &QLocalSocket::readyRead, this, [this] { ReadSocket(); });
    // Without its test the program has no purpose.
    connect(&socket_, &QLocalSocket::disconnected, this, [] { std::_Exit(1); });
    QCoreApplication::instance()->installEventFilter(this);
    // A blinking cursor would be in one picture and not in the next.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    if (qEnvironmentVariable("ZELVARPROBE_PALETTE") == QLatin1String("dark")) {
        QApplication::setPalette(DarkPalette());
    }
}

Probe::~Probe() {
    // The program ends by itself, with a status of its own.
    socket_.blockSignals(true);
}

bool Probe::eventFilter(QObject* watched, QEvent* event) {
    input_.Notice(watched, event);
    if (event->type() == QEvent::Show) {
        if (const auto* box = qobject_cast<QMessageBox*>(watched)) {
            boxesShown_ << Describe(*box).join(u'|');
        }
    }
    return false;
}

void Probe::ReadSocket() {
    while (socket_.canReadLine()) {
        Schedule([this, words = FromLine(socket_.readLine())] { Serve(words); });
    }
}

void Probe::Schedule(std::function<void()> task, bool first) {
    tasks_.insert(first ? tasks_.begin() : tasks_.end(), std::move(task));
    QTimer::singleShot(0, this, [this] { RunNext(); });
}

bool Probe::CanServe() const {
    if (OpenBox() != nullptr) {
        return true;
    }
    // An event loop without a box is that of a box that has just been answered, or that of a popup
    // that flashes the chosen entry: what they lead to is still to come.
    return QThread::currentThread()->loopLevel() <= 1 && !input_.IsUnderWay();
}

void Probe::RunNext() {
    if (!CanServe()) {
        QTimer::singleShot(kRetryMs, this, [this] { RunNext(); });
        return;
    }
    if (!tasks_.empty()) {
        const std::function<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        task();
    }
}

void Probe::Serve(const QStringList& words) {
    try {
        if (words[0] == QLatin1String("boxes")) {
            Answer(QStringList(QStringLiteral("ok")) + boxesShown_);
        } else if (const std::optional<QStringList> values = RunQuery(words)) {
            Answer(QStringList(QStringLiteral("ok")) + *values);
        } else if (const auto action = PrepareAction(input_, words)) {
            Answer({QStringLiteral("ok")});
            (*action)();
        } else {
            throw ProbeError(QStringLiteral("no such command"));
        }
    } catch (const ProbeError& error) {
        Answer({QStringLiteral("error"), QString::fromStdString(error.what())});
    }
}

void Probe::Answer(const QStringList& words) {
    socket_.write(ToLine(words));
    // What follows may keep the event loop waiting.
    socket_.flush();
}

}  // namespace zelvar::e2e
