// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelvar {

/// The title of every message box.
inline constexpr const char* kApplicationTitle = "ZelvarConfig";

enum class BoxIcon { Plain, Exclamation, Critical };
enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxAnswer { Ok, Cancel, Yes, No };

/// The one door through which the program informs or asks the user. Modal: the call returns when
/// the box is closed.
class MessageBox {
  public:
    virtual ~MessageBox() = default;

    /// @param text UTF-8; lines end with "\r\n" or "\n"
    /// @return one of the answers that `buttons` offers; closing the box counts as Cancel or No
    /// where there is one, else as Ok.
    virtual BoxAnswer Ask(const std::string& text, BoxIcon icon, BoxButtons buttons) = 0;

    void Tell(const std::string& text, BoxIcon icon) { Ask(text, icon, BoxButtons::Ok); }
};

}  // namespace zelvar
