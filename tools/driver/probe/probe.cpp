// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "probe.h"

#include <QApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <QStyleHints>
#include <QThread>
#include <QTimer>

#include <array>
#include <cstring>
#include <optional>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

#include "actions.h"
#include "dark_palette.h"
#include "lookup.h"
#include "queries.h"
#include "wire_text.h"

namespace zelvar::e2e {

namespace {

constexpr std::size_t kReadChunk = 4096;
constexpr int kRetryMs = 5;

int ConnectTo(const char* path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path == nullptr || std::strlen(path) >= sizeof address.sun_path) {
        return -1;
    }
    std::strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(fd);
        return -1;
    }
    return fd;
}

}  // namespace

Probe::Probe()
    : socket_(ConnectTo(std::getenv("ZELVARPROBE_SOCKET"))),
      input_([this](std::function<void()> task) { Schedule(std::move(task), true); }) {
    if (socket_ < 0) {
        qWarning("the probe finds no test to talk to");
        return;
    }
    auto* notifier = new QSocketNotifier(socket_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { ReadSocket(); });
    QCoreApplication::instance()->installEventFilter(this);
    // A blinking cursor would be in one picture and not in the next.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    if (qEnvironmentVariable("ZELVARPROBE_PALETTE") == QLatin1String("dark")) {
        QApplication::setPalette(DarkPalette());
    }
}

Probe::~Probe() {
    if (socket_ >= 0) {
        close(socket_);
    }
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
    std::array<char, kReadChunk> chunk{};
    const ssize_t count = read(socket_, chunk.data(), chunk.size());
    if (count <= 0) {
        // The test is gone; nobody needs this program any more.
        std::_Exit(1);
    }
    received_.append(chunk.data(), static_cast<std::size_t>(count));
    for (std::size_t end = received_.find('\n'); end != std::string::npos;
         end = received_.find('\n')) {
        Schedule([this, line = received_.substr(0, end)] { Serve(line); });
        received_.erase(0, end + 1);
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

void Probe::Serve(const std::string& line) {
    QStringList words;
    for (const std::string& word : SplitWords(line)) {
        words << QString::fromStdString(word);
    }
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

void Probe::Answer(const QStringList& words) const {
    std::vector<std::string> answer;
    for (const QString& word : words) {
        answer.push_back(word.toStdString());
    }
    const std::string line = JoinWords(answer) + '\n';
    std::size_t sent = 0;
    while (sent < line.size()) {
        const ssize_t count = send(socket_, line.data() + sent, line.size() - sent, MSG_NOSIGNAL);
        if (count <= 0) {
            return;
        }
        sent += static_cast<std::size_t>(count);
    }
}

}  // namespace zelvar::e2e
