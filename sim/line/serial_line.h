// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zelvar::sim {

/// The line to the other program: a pseudo-terminal made here, or a serial device.
class SerialLine {
  public:
    SerialLine() = default;
    ~SerialLine() { Close(); }
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;

    /// Makes a pseudo-terminal in raw mode and, if `link` is not empty, a link to it. An existing
    /// link is replaced unless another running simulator serves it; a file is not. The reason if it
    /// fails.
    std::optional<std::string> OpenPseudoTerminal(const std::string& link, int baud);
    /// Opens a serial device: raw, 8 data bits, odd parity, 1 stop bit. The reason if it fails.
    std::optional<std::string> OpenDevice(const std::string& path, int baud);
    /// Hangs up, which the program at the other end notices. Removes the link.
    void Close();

    bool IsOpen() const { return fd_ >= 0; }
    bool IsPseudoTerminal() const { return slaveFd_ >= 0; }
    /// For waiting until there is something to read; -1 while closed.
    int fd() const { return fd_; }
    /// What the other end opens.
    const std::string& path() const { return path_; }
    /// The rate that the other end of a pseudo-terminal has set; 0 if it is not a usual one.
    int Baud() const;

    /// What has arrived, without waiting; nothing if the line has vanished.
    std::optional<std::vector<std::uint8_t>> Read() const;
    /// Bytes that do not fit into the buffer are lost, as on a line without a listener.
    void Write(std::span<const std::uint8_t> bytes) const;

  private:
    std::optional<std::string> Fail(const std::string& what);

    int fd_ = -1;
    // Always held open; otherwise the pseudo-terminal would report a hang-up whenever the program
    // at the other end closes it.
    int slaveFd_ = -1;
    std::string path_;
    std::string link_;
    std::string slaveName_;
    int linkMark_ = -1;
};

}  // namespace zelvar::sim
