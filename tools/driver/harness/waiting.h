// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>
#include <QTest>

#include <chrono>
#include <string>

namespace zelvar::e2e {

using Milliseconds = std::chrono::milliseconds;
using Instant = std::chrono::steady_clock::time_point;

/// How long to wait for something that must happen: far longer than it ever takes, also
/// under a sanitizer on a busy machine.
inline constexpr Milliseconds kLimit{30'000};

inline Instant Now() {
    return std::chrono::steady_clock::now();
}

inline Milliseconds Since(Instant start) {
    return std::chrono::duration_cast<Milliseconds>(Now() - start);
}

/// Waits until it holds. @return whether it did within the limit
template <typename Condition>
bool Until(Condition holds, Milliseconds limit = kLimit) {
    return QTest::qWaitFor(holds, static_cast<int>(limit.count()));
}

/// Watches for a while. @return whether it held all the time
template <typename Condition>
bool Stays(Condition holds, Milliseconds duration) {
    return !Until([&] { return !holds(); }, duration);
}

/// A temporary folder, with its files by std::string.
class TempFolder : public QTemporaryDir {
  public:
    std::string Path(const std::string& name) const {
        return filePath(QString::fromStdString(name)).toStdString();
    }
};

}  // namespace zelvar::e2e
