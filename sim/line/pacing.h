// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace zelvar::sim {

/// Bits one byte takes on the line: start, eight data bits, parity, stop.
inline constexpr int kBitsPerByte = 11;

/// When the bytes of one direction have passed the line. Knows no clock of its own.
class Pacer {
  public:
    /// Bits a second; 0 and less: the line takes no time.
    explicit Pacer(int baud = 0) { SetBaud(baud); }
    void SetBaud(int baud);

    /// The time of the last bit of a byte that is handed over at `now` and follows the bytes before
    /// it.
    std::chrono::nanoseconds Pass(std::chrono::nanoseconds now);
    /// Forgets the bytes handed over so far; the next one finds the line free.
    void Restart() { freeAt_ = std::chrono::nanoseconds::min(); }
    std::chrono::nanoseconds ByteTime() const { return byteTime_; }

  private:
    std::chrono::nanoseconds byteTime_{0};
    std::chrono::nanoseconds freeAt_ = std::chrono::nanoseconds::min();
};

}  // namespace zelvar::sim
