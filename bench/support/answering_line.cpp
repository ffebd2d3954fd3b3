// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/answering_line.h"

#include <cstdint>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>

namespace zelvar::bench {

namespace {

constexpr std::uint8_t kEmptyReply[] = {0x08, 0xF8};

}  // namespace

AnsweringLine::AnsweringLine() {
    if (pipe(stop_) != 0) {
        throw std::runtime_error("no pipe");
    }
    answering_ = std::thread([this] { Answer(); });
}

AnsweringLine::~AnsweringLine() {
    close(stop_[1]);
    answering_.join();
    close(stop_[0]);
}

void AnsweringLine::Answer() const {
    const int master = terminal_.Master();
    std::uint8_t received[64];
    // Bytes still to come of the frame at hand, its checksum included.
    int remaining = 0;
    pollfd fds[] = {{master, POLLIN, 0}, {stop_[0], POLLIN, 0}};
    while (poll(fds, 2, -1) > 0 && fds[1].revents == 0) {
        const ssize_t count = read(master, received, sizeof received);
        for (ssize_t i = 0; i < count; ++i) {
            const std::uint8_t byte = received[i];
            remaining = byte < 0x80 ? (byte & 7) + 1 : remaining - 1;
            if (remaining == 0 && write(master, kEmptyReply, sizeof kEmptyReply) < 0) {
                return;
            }
        }
    }
}

}  // namespace zelvar::bench
