// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/line_channel.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace zelvar::e2e {

namespace {

constexpr std::size_t kReadChunk = 4096;

}  // namespace

LineChannel::LineChannel(LineChannel&& other) noexcept {
    *this = std::move(other);
}

LineChannel& LineChannel::operator=(LineChannel&& other) noexcept {
    std::swap(in_, other.in_);
    std::swap(out_, other.out_);
    std::swap(received_, other.received_);
    return *this;
}

bool LineChannel::Send(const std::string& line) const {
    const std::string whole = line + '\n';
    std::size_t sent = 0;
    while (sent < whole.size()) {
        const ssize_t count = write(out_, whole.data() + sent, whole.size() - sent);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

std::optional<std::string> LineChannel::Receive(Milliseconds limit) {
    const Instant start = Now();
    for (;;) {
        const std::size_t end = received_.find('\n');
        if (end != std::string::npos) {
            std::string line = received_.substr(0, end);
            received_.erase(0, end + 1);
            return line;
        }
        const Milliseconds left = std::max(limit - Since(start), Milliseconds(0));
        pollfd ready{in_, POLLIN, 0};
        const int count = poll(&ready, 1, static_cast<int>(left.count()));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return std::nullopt;
        }
        std::array<char, kReadChunk> chunk{};
        const ssize_t bytes = read(in_, chunk.data(), chunk.size());
        if (bytes <= 0) {
            return std::nullopt;
        }
        received_.append(chunk.data(), static_cast<std::size_t>(bytes));
    }
}

void LineChannel::Close() {
    if (in_ >= 0) {
        close(in_);
    }
    if (out_ >= 0 && out_ != in_) {
        close(out_);
    }
    in_ = -1;
    out_ = -1;
}

}  // namespace zelvar::e2e
