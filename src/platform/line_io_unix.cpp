// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "platform/line_io.h"

namespace zelvar {

namespace {

using Clock = std::chrono::steady_clock;

constexpr short kHungUp = POLLERR | POLLHUP | POLLNVAL;

bool IsHungUp(int line) {
    pollfd look{line, 0, 0};
    return poll(&look, 1, 0) > 0 && (look.revents & kHungUp) != 0;
}

/// With bytes still to read the device counts as gone only when they are read.
bool IsGone(int line, short events) {
    int bytes = 0;
    return (events & kHungUp) != 0 && (ioctl(line, FIONREAD, &bytes) != 0 || bytes == 0);
}

bool IsTemporary(int error) {
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

int MillisecondsUntil(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

}  // namespace

bool SendAndWaitOn(QSerialPort& port, std::span<const std::uint8_t> bytes, int milliseconds) {
    const int line = port.handle();
    // Nothing stands between the first write and the poll when the system takes all bytes at once:
    // a thread that is not yet asleep when the line's own thread wakes up waits about 20 us longer.
    ssize_t taken = bytes.empty() ? 0 : write(line, bytes.data(), bytes.size());
    pollfd wait{line, POLLIN, 0};
    if (taken == static_cast<ssize_t>(bytes.size())) {
        const int ready = poll(&wait, 1, milliseconds);
        return ready <= 0 || !IsGone(line, wait.revents);
    }
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (true) {
        if (taken < 0 && !IsTemporary(errno)) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(std::max<ssize_t>(taken, 0)));
        const int left = MillisecondsUntil(end);
        wait.events = bytes.empty() ? POLLIN : POLLOUT;
        const int ready = poll(&wait, 1, left);
        if (ready > 0 && IsGone(line, wait.revents)) {
            return false;
        }
        if (left == 0 || bytes.empty()) {
            return true;
        }
        taken = write(line, bytes.data(), bytes.size());
    }
}

std::optional<std::size_t> ReadFrom(QSerialPort& port, std::span<std::uint8_t> buffer) {
    const int line = port.handle();
    const ssize_t count = read(line, buffer.data(), buffer.size());
    if (count > 0) {
        return static_cast<std::size_t>(count);
    }
    // A read of 0 bytes is no error: the terminal returns at once when there is nothing.
    if ((count < 0 && !IsTemporary(errno)) || IsHungUp(line)) {
        return std::nullopt;
    }
    return 0;
}

bool IsLineLost(const QSerialPort& /*port*/) {
    return false;
}

}  // namespace zelvar
