// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "protocol/reply.h"

namespace zelvar {

// What an exchange adds to the message log, piece by piece; a line ends with "\r\n". A poll is
// logged only if its reply carries data, since polls would flood the log.

/// A space and two upper-case hexadecimal digits.
std::string FormatHexByte(std::uint8_t byte);

std::string LogFrameSent(const FrameBytes& frame);
std::string LogReplyReceived(const FrameBytes& frame, const Reply& reply);
/// An exchange without a valid reply ends its line; a poll then leaves an empty one.
std::string LogNoReply();

}  // namespace zelvar
