// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelvar::e2e {

/// A folder of its own; it goes with everything in it.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string Path(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

}  // namespace zelvar::e2e
