// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalSocket>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>

#include "box_record.h"
#include "input.h"

namespace zelvar::e2e {

/// Lets a test look at the program it is loaded into and act on it as a user does. It connects to
/// the local socket that the environment variable ZELVARPROBE_SOCKET names and answers one line
/// per command, in order: "ok" and values, or "error" and the reason. ZELVARPROBE_PALETTE=dark
/// gives the program the colours of a dark desktop before it makes its first window.
///
/// A command that acts is answered before it acts. What it sets off may show a message box: that
/// box's event loop serves the commands that follow. While the program waits without an event
/// loop, commands wait too.
class Probe : public QObject {
    Q_OBJECT

  public:
    Probe();
    ~Probe() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ReadSocket();
    void Serve(const QStringList& words);
    void Answer(const QStringList& words);
    void Schedule(std::function<void()> task, bool first = false);
    bool CanServe() const;
    void RunNext();

    QLocalSocket socket_;
    std::deque<std::function<void()>> tasks_;
    Input input_;
    QStringList boxesShown_;
};

}  // namespace zelvar::e2e
