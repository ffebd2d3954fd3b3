// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/quit_on_signal.h"

#include <QCoreApplication>

#ifdef Q_OS_UNIX
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace zelvar {

#ifdef Q_OS_UNIX

namespace {

/// A handler may do next to nothing: it writes one byte here, and the event loop reads it.
int toEventLoop[2] = {-1, -1};

void Wake(int /*signal*/) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(toEventLoop[0], &byte, sizeof byte);
}

}  // namespace

void QuitOnSignal() {
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, toEventLoop) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(toEventLoop[1], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    struct sigaction action {};
    action.sa_handler = &Wake;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
}

#else

void QuitOnSignal() {}

#endif

}  // namespace zelvar
