// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <string>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace zelvar::e2e {

/// Waits until a file descriptor has something to read, or has been hung up.
inline bool WaitReadable(int fd, std::chrono::milliseconds limit) {
    pollfd entry{fd, POLLIN, 0};
    return poll(&entry, 1, static_cast<int>(limit.count())) == 1;
}

/// A pseudo-terminal. The test holds this end and a program opens the device at the other.
class PseudoTerminal {
  public:
    /// What the other end is: a serial line passes every byte as it is, a screen has lines that a
    /// person edits.
    enum class Kind { kLine, kScreen };

    /// @param columns of a screen
    explicit PseudoTerminal(Kind kind = Kind::kLine, unsigned short columns = 80) {
        constexpr unsigned short kRows = 24;
        const winsize size{kRows, columns, 0, 0};
        std::array<char, 64> device{};
        if (openpty(&master_, &slave_, device.data(), nullptr, &size) != 0) {
            throw std::runtime_error("no pseudo-terminal");
        }
        device_ = device.data();
        // Programs that a test starts get neither end.
        fcntl(master_, F_SETFD, FD_CLOEXEC);
        fcntl(slave_, F_SETFD, FD_CLOEXEC);
        if (kind == Kind::kLine) {
            termios settings = Settings();
            cfmakeraw(&settings);
            tcsetattr(master_, TCSANOW, &settings);
        }
    }
    ~PseudoTerminal() { HangUp(); }
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// The path of the other end.
    const std::string& Device() const { return device_; }
    int Master() const { return master_; }
    /// The other end, open, so that this one is never hung up.
    int Slave() const { return slave_; }

    termios Settings() const {
        termios settings{};
        if (tcgetattr(master_, &settings) != 0) {
            throw std::runtime_error("no settings of " + device_);
        }
        return settings;
    }

    void Send(const std::vector<std::uint8_t>& bytes) const { Write(bytes.data(), bytes.size()); }
    void Type(const std::string& keys) const { Write(keys.data(), keys.size()); }
    /// @return so many bytes, or fewer when the rest does not come
    std::vector<std::uint8_t> Receive(std::size_t count) const {
        constexpr std::chrono::seconds kLimit{30};
        std::vector<std::uint8_t> bytes;
        std::uint8_t byte = 0;
        while (bytes.size() < count && WaitReadable(master_, kLimit) &&
               read(master_, &byte, 1) == 1) {
            bytes.push_back(byte);
        }
        return bytes;
    }

    /// The device goes, as when an adapter is pulled.
    void HangUp() {
        for (int* end : {&master_, &slave_}) {
            if (*end >= 0) {
                close(*end);
                *end = -1;
            }
        }
    }

  private:
    void Write(const void* bytes, std::size_t count) const {
        if (write(master_, bytes, count) != static_cast<ssize_t>(count)) {
            throw std::runtime_error("cannot write to " + device_);
        }
    }

    int master_ = -1;
    int slave_ = -1;
    std::string device_;
};

}  // namespace zelvar::e2e
