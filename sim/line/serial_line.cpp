// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/serial_line.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#ifdef __APPLE__
#include <util.h>
#else
#include <pty.h>
#endif
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>

namespace zelvar::sim {

namespace {

constexpr std::size_t kReadChunk = 512;

struct Rate {
    speed_t code;
    int baud;
};

constexpr Rate kRates[] = {
    {B9600, 9600}, {B19200, 19200}, {B38400, 38400}, {B57600, 57600}, {B115200, 115200}};

/// Raw mode at a rate; parity only on a real line.
bool SetRaw(int fd, int baud, bool oddParity) {
    termios settings{};
    if (tcgetattr(fd, &settings) != 0) {
        return false;
    }
    cfmakeraw(&settings);  // 8 data bits, no parity
    settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB);
    settings.c_cflag |= CREAD | CLOCAL | (oddParity ? PARENB | PARODD : 0);
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
    for (const Rate& rate : kRates) {
        if (rate.baud == baud) {
            cfsetspeed(&settings, rate.code);
        }
    }
    return tcsetattr(fd, TCSANOW, &settings) == 0;
}

/// Marks the link as served by this program: a socket name that vanishes with the program, however
/// that ends. The pseudo-terminal itself cannot carry the mark, because the next one takes over its
/// number.
/// @return the descriptor that holds the mark while it is open (-1: none could be made); nothing if
/// another program has it
std::optional<int> MarkAsServed(const std::string& link) {
#ifdef __linux__
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(link, error);
    const std::filesystem::path folder = std::filesystem::canonical(whole.parent_path(), error);
    const std::size_t hash = std::hash<std::string>()(folder / whole.filename());
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    // A zero first: the name is not that of a file.
    const std::string text = '\0' + ("zelvarsim-" + std::to_string(hash));
    text.copy(name.sun_path, sizeof name.sun_path);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + text.size());
    const int mark = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (mark >= 0 && bind(mark, reinterpret_cast<const sockaddr*>(&name), size) != 0) {
        const bool taken = errno == EADDRINUSE;
        close(mark);
        return taken ? std::nullopt : std::optional(-1);
    }
    return mark;
#else
    static_cast<void>(link);
    return -1;
#endif
}

bool SetNonBlocking(int fd) {
    const int flags = fcntl(fd, F_GETFL);
    return flags >= 0 && fcntl(fd, F_SETFL, flags | O_NONBLOCK) == 0;
}

}  // namespace

std::optional<std::string> SerialLine::Fail(const std::string& what) {
    const std::string reason = what + ": " + std::strerror(errno);
    Close();
    return reason;
}

std::optional<std::string> SerialLine::OpenPseudoTerminal(const std::string& link, int baud) {
    Close();
    if (openpty(&fd_, &slaveFd_, nullptr, nullptr, nullptr) != 0) {
        return Fail("no pseudo-terminal");
    }
    const char* name = ttyname(slaveFd_);
    slaveName_ = name == nullptr ? "" : name;
    if (name == nullptr || !SetNonBlocking(fd_) || !SetRaw(slaveFd_, baud, false)) {
        return Fail("the pseudo-terminal " + slaveName_);
    }
    path_ = slaveName_;
    if (!link.empty()) {
        const std::optional<int> mark = MarkAsServed(link);
        if (!mark) {
            Close();
            return link + ": another zelvarsim serves it";
        }
        linkMark_ = *mark;
        std::error_code error;
        if (std::filesystem::is_symlink(std::filesystem::symlink_status(link, error))) {
            std::filesystem::remove(link, error);
        }
        std::filesystem::create_symlink(slaveName_, link, error);
        if (error) {
            Close();
            return link + ": " + error.message();
        }
        link_ = link;
        path_ = link;
    }
    return std::nullopt;
}

std::optional<std::string> SerialLine::OpenDevice(const std::string& path, int baud) {
    Close();
    fd_ = open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (fd_ < 0 || !SetRaw(fd_, baud, true)) {
        return Fail(path);
    }
    path_ = path;
    return std::nullopt;
}

void SerialLine::Close() {
    if (!link_.empty()) {
        // Another program may have put a link of its own there meanwhile.
        std::error_code error;
        if (std::filesystem::read_symlink(link_, error) == slaveName_ && !error) {
            std::filesystem::remove(link_, error);
        }
        link_.clear();
    }
    for (int* fd : {&slaveFd_, &fd_, &linkMark_}) {
        if (*fd >= 0) {
            close(*fd);
            *fd = -1;
        }
    }
    path_.clear();
}

int SerialLine::Baud() const {
    termios settings{};
    if (tcgetattr(IsPseudoTerminal() ? slaveFd_ : fd_, &settings) != 0) {
        return 0;
    }
    const speed_t code = cfgetospeed(&settings);
    for (const Rate& rate : kRates) {
        if (rate.code == code) {
            return rate.baud;
        }
    }
    return 0;
}

std::optional<std::vector<std::uint8_t>> SerialLine::Read() const {
    std::array<std::uint8_t, kReadChunk> chunk{};
    const ssize_t count = read(fd_, chunk.data(), chunk.size());
    if (count > 0) {
        return std::vector<std::uint8_t>(chunk.begin(), chunk.begin() + count);
    }
    const bool nothingYet = count < 0 && (errno == EAGAIN || errno == EINTR);
    return nothingYet ? std::optional(std::vector<std::uint8_t>()) : std::nullopt;
}

void SerialLine::Write(std::span<const std::uint8_t> bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = write(fd_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return;
        }
        bytes = bytes.subspan(count);
    }
}

}  // namespace zelvar::sim
