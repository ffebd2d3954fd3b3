// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "serial_line.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <stdlib.h>  // NOLINT: the pseudo-terminal calls are not in <cstdlib>
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

/// Raw mode at a rate; parity only where there is a real line.
bool SetRaw(int fd, int baud, bool oddParity) {
    termios settings{};
    if (tcgetattr(fd, &settings) != 0) {
        return false;
    }
    settings.c_iflag = 0;
    settings.c_oflag = 0;
    settings.c_lflag = 0;
    settings.c_cflag &= ~static_cast<tcflag_t>(CSIZE | PARENB | PARODD | CSTOPB);
    settings.c_cflag |= CS8 | CREAD | CLOCAL;
    if (oddParity) {
        settings.c_cflag |= PARENB | PARODD;
    }
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
    for (const Rate& rate : kRates) {
        if (rate.baud == baud) {
            cfsetispeed(&settings, rate.code);
            cfsetospeed(&settings, rate.code);
        }
    }
    return tcsetattr(fd, TCSANOW, &settings) == 0;
}

/// A lock on the whole of the pseudo-terminal itself: it goes with the program, however that ends.
/// Not the kind that terminal programs take of a line they use (flock).
struct flock WholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

void MarkAsServed(int slaveFd) {
    const struct flock lock = WholeFile();
    // Without the mark all else works; no file system of terminals is known to refuse it.
    static_cast<void>(fcntl(slaveFd, F_SETLK, &lock));
}

/// Whether a link leads to a pseudo-terminal that another simulator serves. The number of one that
/// is gone may have gone to a terminal, or to the one that was just made here.
bool IsServed(const std::string& link) {
    const int fd = open(link.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (fd < 0) {
        return errno == EBUSY;  // a program has it for itself, and with it what serves it
    }
    struct flock lock = WholeFile();
    const bool locked = fcntl(fd, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    close(fd);  // would also take an own mark away: it is made after this
    return locked;
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
    fd_ = posix_openpt(O_RDWR | O_NOCTTY);
    if (fd_ < 0 || grantpt(fd_) != 0 || unlockpt(fd_) != 0 || !SetNonBlocking(fd_)) {
        return Fail("no pseudo-terminal");
    }
    const char* name = ptsname(fd_);
    if (name == nullptr) {
        return Fail("no pseudo-terminal");
    }
    slaveName_ = name;
    slaveFd_ = open(name, O_RDWR | O_NOCTTY);
    if (slaveFd_ < 0 || !SetRaw(slaveFd_, baud, false)) {
        return Fail(slaveName_);
    }
    path_ = slaveName_;
    if (!link.empty()) {
        std::error_code error;
        if (std::filesystem::is_symlink(std::filesystem::symlink_status(link, error))) {
            if (IsServed(link)) {
                Close();
                return link + ": another zelvarsim serves it";
            }
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
    MarkAsServed(slaveFd_);
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
        // Somebody else may have put a link of their own there meanwhile.
        std::error_code error;
        if (std::filesystem::read_symlink(link_, error) == slaveName_ && !error) {
            std::filesystem::remove(link_, error);
        }
        link_.clear();
    }
    for (int* fd : {&slaveFd_, &fd_}) {
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
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
}

}  // namespace zelvar::sim
