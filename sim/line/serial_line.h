// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zelvar::sim {

/// The line to the program under test: a pseudo-terminal made here, or a serial device.
class SerialLine {
  public:
    SerialLine() = default;
    ~SerialLine() { Close(); }
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;

    /// Makes a pseudo-terminal in raw mode and, when `link` is not empty, a link to it; a link that
    /// stands there is replaced unless it leads to another running simulator, anything else is not.
    /// The reason when it fails.
    std::optional<std::string> OpenPseudoTerminal(const std::string& link, int baud);
    /// Opens a serial device: raw, 8 data bits, odd parity, 1 stop bit. The reason when it fails.
    std::optional<std::string> OpenDevice(const std::string& path, int baud);
    /// Hangs up: who has the other end open notices. Removes the link.
    void Close();

    bool IsOpen() const { return fd_ >= 0; }
    bool IsPseudoTerminal() const { return slaveFd_ >= 0; }
    /// For waiting until there is something to read; -1 while closed.
    int fd() const { return fd_; }
    /// What the other end opens.
    const std::string& path() const { return path_; }
    /// The rate that the other end of a pseudo-terminal has set; 0 when it is none of the usual.
    int Baud() const;

    /// What has arrived, without waiting; nothing when the line is gone.
    std::optional<std::vector<std::uint8_t>> Read() const;
    /// Bytes that find no room are lost, as on a line nobody listens to.
    void Write(std::span<const std::uint8_t> bytes) const;

  private:
    std::optional<std::string> Fail(const std::string& what);

    int fd_ = -1;
    // Held open all the time: the pseudo-terminal would report a hang-up whenever the program at
    // the other end closes it.
    int slaveFd_ = -1;
    std::string path_;
    std::string link_;
    std::string slaveName_;
    int linkMark_ = -1;
};

}  // namespace zelvar::sim
