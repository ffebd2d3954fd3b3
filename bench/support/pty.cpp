// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/pty.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <termios.h>
#include <unistd.h>

namespace zelvar::bench {

namespace {

constexpr std::uint8_t kEmptyReply[] = {0x08, 0xF8};

}  // namespace

AnsweringPty::AnsweringPty() : master_(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0 || pipe(stop_) != 0) {
        throw std::runtime_error("no pseudo-terminal");
    }
    termios raw{};
    tcgetattr(master_, &raw);
    cfmakeraw(&raw);
    tcsetattr(master_, TCSANOW, &raw);
    path_ = ptsname(master_);
    answering_ = std::thread([this] { Answer(); });
}

AnsweringPty::~AnsweringPty() {
    close(stop_[1]);
    answering_.join();
    close(stop_[0]);
    close(master_);
}

void AnsweringPty::Answer() const {
    std::uint8_t received[64];
    // Bytes still to come of the frame at hand, its checksum included.
    int remaining = 0;
    pollfd fds[] = {{master_, POLLIN, 0}, {stop_[0], POLLIN, 0}};
    while (poll(fds, 2, -1) > 0 && fds[1].revents == 0) {
        const ssize_t count = read(master_, received, sizeof received);
        if (count <= 0) {
            // Nobody has the other end open.
            poll(&fds[1], 1, 1);
            continue;
        }
        for (ssize_t i = 0; i < count; ++i) {
            const std::uint8_t byte = received[i];
            remaining = byte < 0x80 ? (byte & 7) + 1 : remaining - 1;
            if (remaining == 0 && write(master_, kEmptyReply, sizeof kEmptyReply) < 0) {
                return;
            }
        }
    }
}

}  // namespace zelvar::bench
